// Where the report window stands on the screen.

#include "DesktopWindows.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "ReportWindow.h"
#include "Wait.h"

#include "platform/appkit/NSWindow.h"

#include <QApplication>
#include <QLineEdit>
#include <linux/input-event-codes.h>

namespace {

/// The window of an application that shows it only when the report is there already, as the host does.
class ReportLevel : public ReportWindow
{
protected:
    void showApplication()
    {
        application.resize(900, 700);
        application.show();
        ASSERT_TRUE(waitUntil([this] { return stackedWindows().contains(quint32(application.winId())); }));
    }
    bool isInFront(const QWidget *inFront) const
    {
        return waitUntil(
            [inFront] { return stackedWindows().value(stackedWindows().size() - 1) == quint32(inFront->winId()); });
    }

    QLineEdit application;
};

} // namespace

TEST_F(ReportLevel, isOnTopOfTheApplicationThatComesUpLater)
{
    ASSERT_TRUE(openCrash());
    showApplication();
    EXPECT_TRUE(isInFront(window()));
    application.raise();
    application.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return hasKeyboard(&application); }));
    EXPECT_TRUE(isInFront(window()));
}

TEST_F(ReportLevel, leavesTheApplicationUsable)
{
    ASSERT_TRUE(openCrash());
    showApplication();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    application.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return hasKeyboard(&application); }));
    pressKey(KEY_X);
    EXPECT_TRUE(waitUntil([this] { return application.text() == u"x"; }));
    EXPECT_TRUE(isOpen());
}

TEST_F(ReportLevel, isThatOfAModalPanel)
{
    EXPECT_EQ(kCGModalPanelWindowLevelKey, 10);
    EXPECT_GT(CGWindowLevelForKey(kCGModalPanelWindowLevelKey), CGWindowLevelForKey(kCGNormalWindowLevelKey));
    ASSERT_TRUE(openCrash());
    EXPECT_TRUE(waitUntil(
        [this] { return windowStates(quint32(window()->winId())).contains(QStringLiteral("_NET_WM_STATE_ABOVE")); }));
}

TEST_F(ReportLevel, anAlertOfTheApplicationStandsInFrontOfIt)
{
    showApplication();
    EXPECT_TRUE(waitUntil([this] { return frontWindow() == &application; }));
    ASSERT_TRUE(openCrash());
    // The window manager gives it the keyboard, which the application's request must not meet.
    ASSERT_TRUE(waitUntil([this] { return hasKeyboard(window()); }));
    application.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return hasKeyboard(&application); }));
    EXPECT_EQ(frontWindow(), window());
    click("remindButton");
    EXPECT_EQ(frontWindow(), &application);
}
