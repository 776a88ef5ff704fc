#include "OpenAlert.h"

#include "KeyPress.h"
#include "Wait.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>
#include <QStyle>
#include <QWindow>
#include <gtest/gtest.h>

QDialog *openAlert()
{
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

bool alertComesUp()
{
    return waitUntil([] { return openAlert() && hasKeyboard(openAlert()) && QApplication::focusWidget(); });
}

bool alertGoesBackTo(const QWidget *window)
{
    return waitUntil([window] { return !openAlert() && hasKeyboard(window); });
}

bool noAlertComesUpOn(const QWidget *window)
{
    const bool isThere = waitUntil([window] { return window->windowHandle()->isExposed(); });
    runPendingEvents();
    return isThere && !openAlert();
}

AtAlert::AtAlert(std::function<void()> look) : look_(std::move(look))
{
    qApp->installEventFilter(this);
}

bool AtAlert::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show && qobject_cast<QDialog *>(object))
        look_();
    return false;
}

QStringList textsOfAlert()
{
    QStringList texts;
    for (const char *name : {"message", "information"}) {
        const auto *label = openAlert() ? openAlert()->findChild<QLabel *>(QLatin1StringView(name)) : nullptr;
        texts += label ? label->text() : QString();
    }
    return texts;
}

void tickAlert()
{
    const auto *box = partOfAlert<QCheckBox>("suppression");
    ASSERT_TRUE(box && !box->isChecked());
    clickOn(box);
    ASSERT_TRUE(waitUntil([box] { return box->isChecked(); }));
}

void bringIntoSight(const QWidget *view)
{
    for (QWidget *around = view->parentWidget(); around; around = around->parentWidget()) {
        if (auto *page = qobject_cast<QScrollArea *>(around))
            page->ensureWidgetVisible(const_cast<QWidget *>(view));
    }
}

void clickOn(const QWidget *view)
{
    bringIntoSight(view);
    // A check box wider than its title takes clicks on its start only.
    constexpr int fromStart = 8;
    const QPoint place(qMin(fromStart, view->width() / 2), view->height() / 2);
    clickAt(view->mapToGlobal(QStyle::visualPos(view->layoutDirection(), view->rect(), place)));
}
