// The keys that close the settings, from every control; and Escape, which never does.

#include "KTXConstants.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnRealStore.h"
#include "Wait.h"
#include "host/HostWindow.h"
#include "host/NoticeBar.h"
#include "platform/appkit/controls/Controls.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <linux/input-event-codes.h>

namespace {

constexpr int controlAlone = 0x1000;
constexpr int hotKeyPage = 1;

class PaneInTheHostsWindow : public PaneOnRealStore
{
protected:
    void show()
    {
        pane().willSelect();
        window.showView(pane().mainView(), [] {});
        ASSERT_TRUE(waitUntil([this] { return hasKeyboard(&window); }));
        runPendingEvents();
    }
    ~PaneInTheHostsWindow() override { window.hideView(pane().mainView()); }

    static QList<QWidget *> controlsIn(const QWidget *parent)
    {
        QList<QWidget *> controls;
        for (QWidget *widget : parent->findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus)
                controls += widget;
        }
        return controls;
    }

    QLineEdit *search() { return window.findChild<QLineEdit *>("controlSearchField"); }
    QTabWidget *tabs() { return control<QTabWidget>("tabbedView"); }
    /// The last key is handled last, so that nothing more comes of those before it.
    void pressEscapeAndTheKeysThatClose()
    {
        closing.clear();
        searching.clear();
        pressKey(KEY_ESC);
        pressKey(KEY_W, {KEY_LEFTCTRL});
        pressKey(KEY_Q, {KEY_LEFTCTRL});
        pressKey(KEY_F, {KEY_LEFTCTRL});
        EXPECT_TRUE(waitUntil([this] { return searching.size() == 1; }));
    }
    void expectClosedByTheKeysFrom(QWidget *control)
    {
        control->setFocus();
        ASSERT_TRUE(control->hasFocus()) << control->objectName().toStdString();
        pressEscapeAndTheKeysThatClose();
        EXPECT_EQ(closing.size(), 2) << control->objectName().toStdString();
        EXPECT_TRUE(window.isVisible());
    }

    HostWindow window{QSize(820, 640)};
    QSignalSpy closing{&window, &HostWindow::closeRequested};
    QSignalSpy searching{&window, &HostWindow::searchRequested};
};

} // namespace

TEST_F(PaneInTheHostsWindow, isClosedByCtrlWAndCtrlQFromEveryControlAndNeverByEscape)
{
    show();
    for (int page = 0; page < tabs()->count(); ++page) {
        tabs()->setCurrentIndex(page);
        const QList<QWidget *> controls = controlsIn(tabs()->widget(page));
        EXPECT_FALSE(controls.isEmpty()) << page;
        for (QWidget *control : controls)
            expectClosedByTheKeysFrom(control);
    }
}

TEST_F(PaneInTheHostsWindow, isClosedByThemFromWhatStandsAboveThePages)
{
    show();
    window.noticeBar()->tell(Notice{Notice::Kind::Warning, "Heading", "Text", "Try again", "Dismiss"});
    expectClosedByTheKeysFrom(tabs()->tabBar());
    expectClosedByTheKeysFrom(search());
    const QList<QWidget *> buttons = controlsIn(window.noticeBar());
    EXPECT_EQ(buttons.size(), 2);
    for (QWidget *button : buttons)
        expectClosedByTheKeysFrom(button);
    EXPECT_TRUE(window.noticeBar()->isVisible());
}

TEST_F(PaneInTheHostsWindow, isClosedByThemWhileTheSearchShowsWhatItFound)
{
    show();
    search()->setFocus();
    for (const int key : {KEY_C, KEY_O, KEY_L})
        pressKey(key);
    const auto isListOpen = [] { return QApplication::activePopupWidget() != nullptr; };
    ASSERT_TRUE(waitUntil(isListOpen));
    pressKey(KEY_W, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([this] { return closing.size() == 1; }));
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([&] { return !isListOpen() && search()->text().isEmpty(); }));
    EXPECT_EQ(closing.size(), 1);
}

TEST_F(PaneInTheHostsWindow, keepsAnAlertsEscapeToTheAlert)
{
    show();
    tabs()->setCurrentIndex(hotKeyPage);
    // The last modifier is kept, and a sheet says so.
    control<QAbstractButton>("controlCheckBox")->click();
    control<QAbstractButton>("optionCheckBox")->click();
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_ESC);
    EXPECT_TRUE(alertGoesBackTo(&window));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(closing.size(), 0);
}

TEST_F(PaneInTheHostsWindow, takesTheCombinationsOfTheModifiersInAKeyField)
{
    store().set(KTXModifierMask, controlAlone);
    show();
    tabs()->setCurrentIndex(hotKeyPage);
    QWidget *field = keyField(0);
    field->setFocus();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([&] { return stringValue(field) == "Q"; }));
    EXPECT_EQ(closing.size(), 0);
    control("controlCheckBox")->setFocus();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([this] { return closing.size() == 1; })) << "elsewhere it closes";
}
