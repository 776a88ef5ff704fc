// The keys that close the settings, from every control of the pane.

#include "KeyPress.h"
#include "PaneOnRealStore.h"
#include "Wait.h"
#include "host/HostWindow.h"
#include "platform/appkit/controls/Controls.h"

#include <QSignalSpy>
#include <QTabWidget>
#include <linux/input-event-codes.h>

namespace {

class PaneInTheHostsWindow : public PaneOnRealStore
{
protected:
    PaneInTheHostsWindow()
    {
        pane().willSelect();
        window.showView(pane().mainView(), [] {});
        EXPECT_TRUE(waitUntil([this] { return hasKeyboard(&window); }));
    }
    ~PaneInTheHostsWindow() override { window.hideView(pane().mainView()); }

    static QList<QWidget *> controlsOf(const QWidget *page)
    {
        QList<QWidget *> controls;
        for (QWidget *widget : page->findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus)
                controls += widget;
        }
        return controls;
    }

    HostWindow window{QSize(820, 640)};
    QSignalSpy closing{&window, &HostWindow::closeRequested};
};

} // namespace

TEST_F(PaneInTheHostsWindow, isClosedByCtrlWAndCtrlQFromEveryControlAndNeverByEscape)
{
    auto *tabs = control<QTabWidget>("tabbedView");
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        const QList<QWidget *> controls = controlsOf(tabs->widget(page));
        EXPECT_FALSE(controls.isEmpty()) << page;
        for (QWidget *control : controls) {
            control->setFocus();
            closing.clear();
            pressKey(KEY_ESC);
            pressKey(KEY_W, {KEY_LEFTCTRL});
            pressKey(KEY_Q, {KEY_LEFTCTRL});
            EXPECT_TRUE(waitUntil([this] { return closing.size() == 2; }, 5000))
                << control->objectName().toStdString() << ' ' << closing.size();
        }
    }
}
