// The real agent among windows of every kind, on each window manager.

#include "KTXConstants.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

constexpr quint32 onAllDesktops = 0xffffffff;

class SelectionDesktop : public SelectionSession
{
protected:
    void TearDown() override
    {
        EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
        goTo(0);
    }
    /// Holds the modifiers, presses these keys and lets go.
    void walk(const QList<int> &keys)
    {
        holdModifiers();
        for (const int key : keys)
            pressKey(key);
        // Who lets go before the first press is handled means that one alone.
        presses_ += keys.size();
        EXPECT_TRUE(waitUntil([this] { return agent.lines().filter("pressed").size() == presses_; }));
        releaseModifiers();
    }
    static void goTo(quint32 desktop)
    {
        goToDesktop(desktop);
        ASSERT_TRUE(waitUntil([desktop] { return currentDesktop() == desktop; }));
    }
    void minimiseWindow(const QString &title)
    {
        minimise(window(title).id());
        ASSERT_TRUE(waitUntil([&] { return isMinimised(title); }));
    }
    bool isMinimised(const QString &title) { return windowStates(window(title).id()).contains("_NET_WM_STATE_HIDDEN"); }

private:
    qsizetype presses_ = 0;
};

QPoint placeOf(const WindowOfAnotherProgram &window)
{
    for (const DesktopWindow &one : desktopWindows()) {
        if (one.id == window.id())
            return one.position;
    }
    return {};
}

} // namespace

TEST_F(SelectionDesktop, isWalkedInEachDirection)
{
    open();
    walk({KEY_RIGHT});
    EXPECT_TRUE(isActive("middle"));
    walk({KEY_DOWN});
    EXPECT_TRUE(isActive("below"));
    walk({KEY_UP});
    EXPECT_TRUE(isActive("left"));
    walk({KEY_RIGHT, KEY_RIGHT});
    EXPECT_TRUE(isActive("right"));
    walk({KEY_LEFT});
    EXPECT_TRUE(isActive("middle"));
}

TEST_F(SelectionDesktop, isWalkedDownTheStack)
{
    open();
    WindowOfAnotherProgram cover("cover", {60, 70, 250, 200});
    ASSERT_TRUE(cover.show());
    ASSERT_TRUE(cover.takesFocus());
    walk({KEY_SLASH});
    EXPECT_TRUE(isActive("left"));
    EXPECT_TRUE(waitUntil([&] { return stackedWindows().last() == window("left").id(); }));
    walk({KEY_SLASH});
    EXPECT_TRUE(isActive("cover"));
    EXPECT_TRUE(waitUntil([&] { return stackedWindows().last() == cover.id(); }));
}

TEST_F(SelectionDesktop, isWalkedRoundItsEdges)
{
    open();
    walk({KEY_LEFT});
    EXPECT_TRUE(isActive("right"));
    ASSERT_TRUE(window("left").takesFocus());
    walk({KEY_UP});
    EXPECT_TRUE(isActive("below"));
}

TEST_F(SelectionDesktop, endsAtItsEdgesWithoutWrapping)
{
    open({{KTXHWrap, false}, {KTXVWrap, false}});
    walk({KEY_LEFT});
    walk({KEY_UP});
    EXPECT_TRUE(says({"began", "accepted left", "began", "accepted left"}));
}

TEST_F(SelectionDesktop, hasNoWindowsOfAnotherOne)
{
    setDesktops(2);
    open();
    ASSERT_TRUE(window("middle").takesDesktop(1));
    ASSERT_TRUE(window("left").takesFocus());
    walk({KEY_RIGHT});
    EXPECT_TRUE(isActive("right"));
}

TEST_F(SelectionDesktop, isLeftForTheWindowBefore)
{
    setDesktops(2);
    open();
    walk({KEY_RIGHT});
    ASSERT_TRUE(isActive("middle"));
    goTo(1);
    pressKey(KEY_ENTER, modifiers());
    EXPECT_TRUE(isActive("left"));
    EXPECT_EQ(currentDesktop(), 0U);
}

TEST_F(SelectionDesktop, showsWindowsOfAllDesktops)
{
    setDesktops(2);
    open();
    ASSERT_TRUE(window("middle").takesDesktop(onAllDesktops));
    goTo(1);
    WindowOfAnotherProgram there("there", {800, 70, 250, 200});
    ASSERT_TRUE(there.show());
    ASSERT_TRUE(there.takesFocus());
    walk({KEY_LEFT});
    EXPECT_TRUE(isActive("middle"));
    EXPECT_EQ(currentDesktop(), 1U);
}

TEST_F(SelectionDesktop, hasNoMinimisedWindows)
{
    open();
    minimiseWindow("middle");
    ASSERT_TRUE(window("left").takesFocus());
    walk({KEY_RIGHT});
    EXPECT_TRUE(isActive("right"));
    EXPECT_TRUE(isMinimised("middle"));
}

TEST_F(SelectionDesktop, bringsMinimisedWindowsBackIfAskedFor)
{
    open({{KTXShowHidden, true}});
    minimiseWindow("middle");
    ASSERT_TRUE(window("left").takesFocus());
    walk({KEY_SLASH, KEY_SLASH, KEY_SLASH});
    EXPECT_TRUE(isActive("middle"));
    EXPECT_TRUE(waitUntil([this] { return steps().last() == "accepted middle"; }));
    EXPECT_TRUE(waitUntil([this] { return !isMinimised("middle"); }));
}

TEST_F(SelectionDesktop, isLeftAndEnteredInFullscreen)
{
    open();
    ASSERT_TRUE(window("left").takesState("FULLSCREEN"));
    ASSERT_TRUE(window("left").takesFocus());
    walk({KEY_RIGHT});
    EXPECT_TRUE(isActive("below")) << "nothing else shows: down the stack";
    pressKey(KEY_ENTER, modifiers());
    EXPECT_TRUE(isActive("left"));
    EXPECT_TRUE(windowStates(window("left").id()).contains("_NET_WM_STATE_FULLSCREEN"));
}

TEST_F(SelectionDesktop, showsWhatAMaximisedWindowLeaves)
{
    open();
    ASSERT_TRUE(window("left").takesState("MAXIMIZED_VERT", "MAXIMIZED_HORZ"));
    ASSERT_TRUE(window("left").takesFocus());
    ASSERT_TRUE(window("below").takesFocus());
    walk({KEY_RIGHT});
    EXPECT_TRUE(says({"began", "moved to left", "accepted left"})) << "the others are covered";
    EXPECT_TRUE(isActive("left"));
    EXPECT_TRUE(windowStates(window("left").id()).contains("_NET_WM_STATE_MAXIMIZED_VERT"));
}

TEST_F(SelectionDesktop, marksWindowsWithinTheShadowsThatTheyDraw)
{
    open();
    WindowOfAnotherProgram shadow("shadow", {400, 500, 260, 200});
    shadow.setUndecorated().set("_GTK_FRAME_EXTENTS", "CARDINAL", {20, 30, 10, 40});
    ASSERT_TRUE(shadow.show());
    ASSERT_TRUE(window("below").takesFocus());
    holdModifiers();
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(says({"began", "moved to shadow"}));
    const QRect within(placeOf(shadow) + QPoint(20, 10), QSize(260 - 50, 200 - 50));
    EXPECT_TRUE(waitUntil([&within] { return marks().contains(within); }));
    releaseModifiers();
    EXPECT_TRUE(isActive("shadow"));
}

TEST_F(SelectionDesktop, hasDialogsBesideTheirParents)
{
    open();
    WindowOfAnotherProgram dialog("dialog", {450, 120, 150, 100});
    dialog.set("WM_TRANSIENT_FOR", "WINDOW", {window("middle").id()}).setType("DIALOG");
    dialog.setNames("_NET_WM_STATE", {"_NET_WM_STATE_MODAL"});
    ASSERT_TRUE(dialog.show());
    ASSERT_TRUE(window("left").takesFocus());
    walk({KEY_RIGHT});
    EXPECT_TRUE(says({"began", "moved to middle", "accepted middle"}));
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window("middle").id() || activeWindow() == dialog.id(); }))
        << "some managers turn to a modal dialog in its parent's place";
    ASSERT_TRUE(window("left").takesFocus());
    walk({KEY_RIGHT, KEY_RIGHT});
    EXPECT_TRUE(isActive("dialog"));
    EXPECT_EQ(steps().filter("refused"), QStringList());
}
