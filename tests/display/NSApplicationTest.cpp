// Bringing the application to the front, as window manager and user see it.

#include "platform/appkit/NSApplication.h"
#include "AlertSheetOnWindow.h"
#include "AttentionListener.h"
#include "DesktopWindows.h"
#include "ForeignWindow.h"

namespace {

class TheApplication : public AnAlertSheet
{
protected:
    TheApplication() { NSApplication::sharedApplication()->setMainWindow(window); }
    /// The user turns to another program.
    void turnToAnother()
    {
        another = std::make_unique<ForeignWindow>("Another program");
        turnBackToAnother();
    }
    void turnBackToAnother()
    {
        ASSERT_TRUE(another->takesFocus());
        // The toolkit gives a window of its own some time to take the focus over.
        ASSERT_TRUE(waitUntil([] { return !QGuiApplication::focusWindow(); }));
    }

    static bool asksForAttention(const QWidget *asking)
    {
        return windowStates(idOf(asking)).contains("_NET_WM_STATE_DEMANDS_ATTENTION");
    }
    static quint32 idOf(const QWidget *shown) { return quint32(shown->winId()); }
    /// Whether windows stand one before the other, the lowest first.
    static bool areStacked(const QList<quint32> &windows)
    {
        QList<quint32> stacking = stackedWindows();
        stacking.removeIf([&](quint32 other) { return !windows.contains(other); });
        return stacking == windows;
    }
    static bool isMinimised(const QWidget *asked) { return windowStates(idOf(asked)).contains("_NET_WM_STATE_HIDDEN"); }
    static bool comesToFront(const QWidget *asked)
    {
        return waitUntil([asked] { return asked->isActiveWindow() && activeWindow() == idOf(asked); });
    }
    /// Waits until an attention that an activation still had in mind would have been asked for.
    static bool laterAttentionIsOver()
    {
        QTimer later;
        later.setSingleShot(true);
        // The product's own timers of that length were started before, and fire before.
        later.start(1000);
        return waitUntil([&later] { return !later.isActive(); });
    }
    static void activate(bool ignoringOthers)
    {
        NSApplication::sharedApplication()->activateIgnoringOtherApps(ignoringOthers);
    }

    std::unique_ptr<ForeignWindow> another;
};

/// With two desktops, the window on the first and the user on the second: there no window may take the focus by itself.
class TheApplicationOnAnotherDesktop : public TheApplication
{
protected:
    TheApplicationOnAnotherDesktop()
    {
        setDesktops(2);
        EXPECT_TRUE(waitUntil([] { return desktops() == 2; }));
    }
    ~TheApplicationOnAnotherDesktop() override
    {
        goToDesktop(0);
        setDesktops(1);
        EXPECT_TRUE(waitUntil([] { return desktops() == 1 && currentDesktop() == 0; }));
    }
    static void turnTo(quint32 desktop)
    {
        goToDesktop(desktop);
        ASSERT_TRUE(waitUntil([desktop] { return currentDesktop() == desktop; }));
        ASSERT_TRUE(desktop == 0 || waitUntil([] { return !QGuiApplication::focusWindow(); }));
    }
};

} // namespace

TEST_F(TheApplication, comesBeforeAnotherWindowAndTakesTheFocus)
{
    window->showActive();
    turnToAnother();
    ASSERT_TRUE(waitUntil([&] { return areStacked({idOf(window), another->id()}); }));
    const AttentionListener listener(idOf(window));
    activate(true);
    EXPECT_TRUE(comesToFront(window));
    EXPECT_TRUE(laterAttentionIsOver());
    EXPECT_FALSE(listener.hasBeenAskedFor()) << "nobody has to be told";
    EXPECT_TRUE(waitUntil([&] { return areStacked({another->id(), idOf(window)}); }));
    EXPECT_TRUE(window->field->hasFocus());
    EXPECT_FALSE(asksForAttention(window));
}

TEST_F(TheApplication, thatIsToLeaveOthersAloneAsksForAttentionUntilItIsTurnedTo)
{
    window->showActive();
    turnToAnother();
    activate(false);
    ASSERT_TRUE(waitUntil([&] { return asksForAttention(window); }));
    EXPECT_EQ(activeWindow(), another->id());
    EXPECT_TRUE(areStacked({idOf(window), another->id()}));
    window->activateWindow();
    ASSERT_TRUE(comesToFront(window));
    EXPECT_TRUE(waitUntil([&] { return !asksForAttention(window); }));
}

TEST_F(TheApplication, thatHasTheFocusAsksForNothing)
{
    window->showActive();
    ASSERT_TRUE(comesToFront(window));
    for (const bool ignoringOthers : {true, false}) {
        activate(ignoringOthers);
        EXPECT_TRUE(laterAttentionIsOver());
        EXPECT_FALSE(asksForAttention(window)) << ignoringOthers;
        EXPECT_EQ(activeWindow(), idOf(window));
    }
}

TEST_F(TheApplication, thatIsMinimisedComesBack)
{
    window->showActive();
    minimise(idOf(window));
    ASSERT_TRUE(waitUntil([&] { return isMinimised(window) && window->isMinimized(); }));
    turnToAnother();
    activate(true);
    EXPECT_TRUE(comesToFront(window));
    EXPECT_FALSE(isMinimised(window));
    EXPECT_TRUE(waitUntil([&] { return window->isExposed(); }));
}

TEST_F(TheApplication, thatIsMinimisedStaysSoWhereItIsToLeaveOthersAlone)
{
    window->showActive();
    minimise(idOf(window));
    ASSERT_TRUE(waitUntil([&] { return isMinimised(window) && window->isMinimized(); }));
    turnToAnother();
    activate(false);
    EXPECT_TRUE(waitUntil([&] { return asksForAttention(window); }));
    EXPECT_TRUE(isMinimised(window));
    EXPECT_EQ(activeWindow(), another->id());
}

TEST_F(TheApplication, withASheetGivesTheSheetTheFocusInFrontOfItsWindow)
{
    showSheet();
    turnToAnother();
    const QWidget *sheet = window->findChild<QDialog *>();
    ASSERT_TRUE(sheet);
    activate(true);
    EXPECT_TRUE(comesToFront(sheet));
    EXPECT_TRUE(waitUntil([&] { return areStacked({another->id(), idOf(window), idOf(sheet)}); }));
    pressKey(KEY_ESC);
    EXPECT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers.size(), 1);
}

TEST_F(TheApplication, withASheetThatHasTheFocusLeavesItThere)
{
    showSheet();
    const QWidget *sheet = openAlert();
    ASSERT_TRUE(comesToFront(sheet));
    activate(true);
    activate(false);
    EXPECT_TRUE(laterAttentionIsOver());
    EXPECT_EQ(activeWindow(), idOf(sheet));
    EXPECT_FALSE(asksForAttention(window));
    EXPECT_FALSE(asksForAttention(sheet));
}

TEST_F(TheApplication, thatIsMinimisedWithASheetComesBackWithIt)
{
    showSheet();
    const QWidget *sheet = openAlert();
    minimise(idOf(window));
    ASSERT_TRUE(waitUntil([&] { return isMinimised(window) && window->isMinimized(); }));
    turnToAnother();
    activate(true);
    EXPECT_TRUE(comesToFront(sheet));
    EXPECT_TRUE(laterAttentionIsOver());
    EXPECT_TRUE(waitUntil([&] { return !isMinimised(window) && window->isExposed(); }));
    EXPECT_TRUE(waitUntil([&] { return !asksForAttention(window) && !asksForAttention(sheet); }));
}

TEST_F(TheApplication, bringsItsMainWindowToTheFrontAndNoOther)
{
    AWindow other;
    other.showActive();
    window->showActive();
    turnToAnother();
    for (AWindow *named : {window, &other}) {
        NSApplication::sharedApplication()->setMainWindow(named);
        activate(true);
        EXPECT_TRUE(comesToFront(named));
        turnBackToAnother();
    }
    NSApplication::sharedApplication()->setMainWindow(nullptr);
    activate(true);
    EXPECT_TRUE(laterAttentionIsOver());
    EXPECT_EQ(activeWindow(), another->id());
}

TEST_F(TheApplication, withoutAWindowDoesNothing)
{
    ASSERT_FALSE(window->isVisible());
    activate(true);
    activate(false);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(TheApplicationOnAnotherDesktop, asksForAttentionWhereTheFocusMayNotBeTaken)
{
    window->showActive();
    turnTo(1);
    const AttentionListener listener(idOf(window));
    activate(true);
    EXPECT_TRUE(waitUntil([&] { return asksForAttention(window); }));
    EXPECT_TRUE(waitUntil([&] { return listener.hasBeenAskedFor(); })) << "also without the window manager's help";
    EXPECT_NE(activeWindow(), idOf(window));
    EXPECT_EQ(currentDesktop(), 1U);
    turnTo(0);
    window->activateWindow();
    ASSERT_TRUE(comesToFront(window));
    EXPECT_TRUE(waitUntil([&] { return !asksForAttention(window); }));
}

TEST_F(TheApplicationOnAnotherDesktop, asksForAttentionForItsSheet)
{
    showSheet();
    const QWidget *sheet = openAlert();
    turnTo(1);
    activate(true);
    EXPECT_TRUE(waitUntil([&] { return asksForAttention(sheet); }));
    turnTo(0);
    activate(true);
    EXPECT_TRUE(comesToFront(sheet));
    EXPECT_TRUE(waitUntil([&] { return !asksForAttention(sheet); }));
}
