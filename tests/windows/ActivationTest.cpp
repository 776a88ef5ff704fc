// Turning to a window, on each window manager.

#include "WindowsOnDesktop.h"

#include <QElapsedTimer>
#include <algorithm>
#include <csignal>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// It is given 500, by a timer that may be early by a twentieth.
constexpr int leastMilliseconds = 450;

class Activation : public WindowsOnDesktop
{
protected:
    Activation()
    {
        QObject::connect(system.get(), &WindowSystem::activated, [this](quint32 window) { activated += window; });
        QObject::connect(system.get(), &WindowSystem::notActivated, [this](quint32 window) { refused += window; });
    }
    /// Two windows, the second one in front with the focus.
    void SetUp() override
    {
        ASSERT_TRUE(behind.show());
        ASSERT_TRUE(inFront.show());
        ASSERT_TRUE(inFront.takesFocus());
    }
    void turnTo(quint32 window)
    {
        system->activate(window, serverTime());
        EXPECT_THAT(activated, IsEmpty());
        EXPECT_TRUE(waitUntil([this] { return !activated.isEmpty() || !refused.isEmpty(); }));
    }
    /// A window may be told as the active one a moment before it is in front.
    void expectActive(quint32 window)
    {
        EXPECT_THAT(activated, ElementsAre(window));
        EXPECT_THAT(refused, IsEmpty());
        EXPECT_TRUE(waitUntil([&] { return activeWindow() == window && topmostCandidate() == window; }));
    }
    quint32 topmostCandidate()
    {
        const WindowWorld now = world();
        const auto found = std::find_if(now.windows.cbegin(), now.windows.cend(),
            [](const WindowDescription &window) { return window.isCandidate(); });
        return found == now.windows.cend() ? 0 : found->windowID;
    }

    WindowOfAnotherProgram behind{"Behind"}, inFront{"In front", {300, 250, 300, 200}};
    QList<quint32> activated, refused;
};

} // namespace

TEST_F(Activation, bringsAWindowToTheFrontWithTheFocus)
{
    turnTo(behind.id());
    expectActive(behind.id());
}

TEST_F(Activation, ofTheActiveWindowIsToldToo)
{
    turnTo(inFront.id());
    expectActive(inFront.id());
}

TEST_F(Activation, bringsAMinimisedWindowBack)
{
    minimise(behind.id());
    ASSERT_TRUE(waitUntil([this] { return windowStates(behind.id()).contains("_NET_WM_STATE_HIDDEN"); }));
    turnTo(behind.id());
    expectActive(behind.id());
    EXPECT_FALSE(described(behind.id()).isMinimised);
}

TEST_F(Activation, goesToTheWindowsDesktopAndLeavesItThere)
{
    setDesktops(2);
    ASSERT_TRUE(waitUntil([] { return desktops() == 2; }));
    WindowOfAnotherProgram there("There");
    there.set("_NET_WM_DESKTOP", "CARDINAL", {1});
    ASSERT_TRUE(there.show());
    ASSERT_EQ(described(there.id()).windowIsIgnored, WindowIgnored::OtherDesktop);
    turnTo(there.id());
    expectActive(there.id());
    EXPECT_EQ(currentDesktop(), 1U);
    EXPECT_EQ(described(behind.id()).windowIsIgnored, WindowIgnored::OtherDesktop);
    activated.clear();
    turnTo(behind.id());
    expectActive(behind.id());
    EXPECT_EQ(currentDesktop(), 0U);
}

TEST_F(Activation, reachesDialogsAndWindowsThatHaveOne)
{
    WindowOfAnotherProgram dialog("Dialog");
    dialog.set("WM_TRANSIENT_FOR", "WINDOW", {behind.id()}).setType("DIALOG");
    ASSERT_TRUE(dialog.show());
    turnTo(inFront.id());
    expectActive(inFront.id());
    activated.clear();
    turnTo(dialog.id());
    expectActive(dialog.id());
}

TEST_F(Activation, isDoneWhereAModalDialogOfTheWindowHasTheFocus)
{
    WindowOfAnotherProgram dialog("Modal");
    dialog.set("WM_TRANSIENT_FOR", "WINDOW", {behind.id()}).setType("DIALOG");
    dialog.setNames("_NET_WM_STATE", {"_NET_WM_STATE_MODAL"});
    ASSERT_TRUE(dialog.show());
    turnTo(inFront.id());
    activated.clear();
    turnTo(behind.id());
    EXPECT_THAT(activated, ElementsAre(behind.id()));
    EXPECT_THAT(refused, IsEmpty());
}

TEST_F(Activation, isToldAsFailedWhereTheWindowHasGone)
{
    const quint32 gone = behind.id();
    behind.destroy();
    turnTo(gone);
    EXPECT_THAT(refused, ElementsAre(gone));
}

TEST_F(Activation, isToldAsFailedWhereTheManagerDoesNothing)
{
    const pid_t manager = qEnvironmentVariableIntValue("LUMAROO_MANAGER_PID");
    ASSERT_GT(manager, 0);
    ASSERT_EQ(kill(manager, SIGSTOP), 0);
    QElapsedTimer timer;
    timer.start();
    turnTo(behind.id());
    EXPECT_GE(timer.elapsed(), leastMilliseconds);
    EXPECT_THAT(refused, ElementsAre(behind.id()));
    EXPECT_EQ(kill(manager, SIGCONT), 0);
    // It has been asked all the same.
    EXPECT_TRUE(waitUntil([this] { return activeWindow() == behind.id(); }));
}

TEST_F(Activation, withoutATimeIsNotTried)
{
    system->activate(behind.id(), 0);
    EXPECT_TRUE(waitUntil([this] { return !refused.isEmpty(); }));
    EXPECT_THAT(refused, ElementsAre(behind.id()));
    EXPECT_EQ(activeWindow(), inFront.id());
}

TEST_F(Activation, isGivenUpForTheNextOne)
{
    system->activate(behind.id(), serverTime());
    turnTo(inFront.id());
    EXPECT_THAT(activated, ElementsAre(inFront.id()));
    EXPECT_THAT(refused, IsEmpty());
    EXPECT_TRUE(waitUntil([this] { return activeWindow() == inFront.id(); }));
}

TEST_F(Activation, goesOnWhileWindowsAreRead)
{
    system->activate(behind.id(), serverTime());
    while (activeWindow() != behind.id())
        world();
    EXPECT_TRUE(waitUntil([this] { return !activated.isEmpty() || !refused.isEmpty(); }));
    expectActive(behind.id());
}
