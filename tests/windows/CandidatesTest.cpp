// Which windows can be selected, on each window manager.

#include "WindowsOnDesktop.h"

using testing::ElementsAre;

namespace {

class Candidates : public WindowsOnDesktop
{
protected:
    /// Managers take a moment to say where a window is.
    bool becomes(const WindowOfAnotherProgram &window, WindowIgnored expected)
    {
        return waitUntil([&] { return described(window.id()).windowIsIgnored == expected; });
    }
};

constexpr int contentHeight = 200;
constexpr quint32 onAllDesktops = 0xffffffff;

QList<quint32> idsOf(const WindowWorld &world)
{
    QList<quint32> ids;
    for (const WindowDescription &window : world.windows)
        ids += window.windowID;
    return ids;
}

} // namespace

TEST_F(Candidates, areNoneWhereThereIsNoWindow)
{
    EXPECT_TRUE(world().windows.isEmpty());
    EXPECT_EQ(world().activeWindow, 0U);
}

TEST_F(Candidates, areReadTopmostFirstWithNamesProgramsAndProcesses)
{
    WindowOfAnotherProgram lower("Lower"), upper("Upper");
    lower.setClass("terminal", "Terminal").set("_NET_WM_PID", "CARDINAL", {4711});
    ASSERT_TRUE(lower.show());
    ASSERT_TRUE(upper.show());
    turnToWindow(upper.id());
    ASSERT_TRUE(waitUntil([&] { return activeWindow() == upper.id() && stackedWindows().last() == upper.id(); }));
    const WindowWorld now = world();
    EXPECT_THAT(idsOf(now), ElementsAre(upper.id(), lower.id()));
    EXPECT_EQ(now.activeWindow, upper.id());
    const WindowDescription window = *now.window(lower.id());
    EXPECT_EQ(window.windowOrder, 1);
    EXPECT_EQ(window.windowName, "Lower");
    EXPECT_EQ(window.appName, "Terminal");
    EXPECT_EQ(window.windowPID, 4711);
    EXPECT_TRUE(window.isCandidate() && window.covers());
}

TEST_F(Candidates, areNoPanelsMenusAndTheLike)
{
    for (const char *type : {"DESKTOP", "DOCK", "TOOLBAR", "MENU", "SPLASH"}) {
        WindowOfAnotherProgram window(type);
        window.setType(type);
        ASSERT_TRUE(window.show()) << type;
        EXPECT_EQ(ignored(window), WindowIgnored::Type) << type;
    }
    for (const char *type : {"NORMAL", "DIALOG"}) {
        WindowOfAnotherProgram window(type);
        window.setType(type);
        ASSERT_TRUE(window.show()) << type;
        EXPECT_EQ(ignored(window), WindowIgnored::No) << type;
    }
}

TEST_F(Candidates, areNotThoseThatTaskBarsLeaveOutButDialogsAre)
{
    for (const char *type : {"NORMAL", "UTILITY", "DIALOG"}) {
        WindowOfAnotherProgram window(type);
        window.setType(type).setNames("_NET_WM_STATE", {"_NET_WM_STATE_SKIP_TASKBAR"});
        ASSERT_TRUE(window.show());
        const bool stays = QByteArray(type) == "DIALOG";
        EXPECT_EQ(ignored(window), stays ? WindowIgnored::No : WindowIgnored::NotInTaskbar) << type;
    }
}

TEST_F(Candidates, areDialogsOnTheirParents)
{
    WindowOfAnotherProgram parent("Parent"), dialog("Dialog");
    ASSERT_TRUE(parent.show());
    dialog.set("WM_TRANSIENT_FOR", "WINDOW", {parent.id()});
    dialog.setNames("_NET_WM_STATE", {"_NET_WM_STATE_SKIP_TASKBAR"});
    ASSERT_TRUE(dialog.show());
    EXPECT_EQ(ignored(dialog), WindowIgnored::No);
    EXPECT_LT(described(dialog.id()).windowOrder, described(parent.id()).windowOrder);
}

TEST_F(Candidates, areMinimisedOnesOnlyIfAskedFor)
{
    WindowOfAnotherProgram window("Minimised");
    ASSERT_TRUE(window.show());
    const auto rect = [&] { return described(window.id(), {true, {}}).windowRect; };
    ASSERT_TRUE(waitUntil([&] { return rect().height() > contentHeight; })) << "it has no frame";
    const QRect before = rect();
    minimise(window.id());
    ASSERT_TRUE(waitUntil([&] { return windowStates(window.id()).contains("_NET_WM_STATE_HIDDEN"); }));
    EXPECT_EQ(ignored(window), WindowIgnored::Minimised);
    EXPECT_EQ(ignored(window, {true, {}}), WindowIgnored::No);
    const WindowDescription hidden = described(window.id(), {true, {}});
    EXPECT_TRUE(hidden.isMinimised);
    EXPECT_FALSE(hidden.covers());
    // Some managers let it fly to its icon.
    EXPECT_TRUE(waitUntil([&] { return rect() == before; }));
}

TEST_F(Candidates, areNoneOfExcludedPrograms)
{
    WindowOfAnotherProgram window("Excluded");
    window.setClass("panel-plugin", "Plugin");
    ASSERT_TRUE(window.show());
    EXPECT_EQ(ignored(window, {false, {"Other", "Plug"}}), WindowIgnored::No);
    EXPECT_EQ(ignored(window, {false, {"Other", "Plugin"}}), WindowIgnored::Program);
    EXPECT_EQ(ignored(window, {false, {"panel-plugin"}}), WindowIgnored::Program);
    EXPECT_EQ(ignored(window, {false, {"PLUGIN"}}), WindowIgnored::Program);
}

TEST_F(Candidates, areThoseOfThisDesktopAndOfAll)
{
    setDesktops(2);
    ASSERT_TRUE(waitUntil([] { return desktops() == 2; }));
    WindowOfAnotherProgram here("Here"), there("There"), everywhere("Everywhere");
    there.set("_NET_WM_DESKTOP", "CARDINAL", {1});
    for (WindowOfAnotherProgram *window : {&here, &there, &everywhere})
        ASSERT_TRUE(window->show());
    ASSERT_TRUE(everywhere.takesDesktop(onAllDesktops));
    EXPECT_TRUE(becomes(here, WindowIgnored::No));
    EXPECT_TRUE(becomes(there, WindowIgnored::OtherDesktop));
    EXPECT_FALSE(described(there.id()).covers());
    EXPECT_TRUE(becomes(everywhere, WindowIgnored::No));
    goToDesktop(1);
    ASSERT_TRUE(waitUntil([] { return currentDesktop() == 1; }));
    EXPECT_TRUE(becomes(here, WindowIgnored::OtherDesktop));
    EXPECT_TRUE(becomes(there, WindowIgnored::No));
    EXPECT_TRUE(becomes(everywhere, WindowIgnored::No));
    goToDesktop(0);
    ASSERT_TRUE(waitUntil([] { return currentDesktop() == 0; }));
}
