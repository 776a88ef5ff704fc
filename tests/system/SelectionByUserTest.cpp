// The real agent, windows and a window manager, and a user who walks among them with the keyboard.

#include "KTXConstants.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

using SelectionByUser = SelectionSession;

TEST_F(SelectionByUser, walksToAWindowAndIsThereWhenTheModifiersAreLetGo)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(says({"began", "moved to middle"}));
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right"}));
    EXPECT_EQ(activeWindowTitle(), u"left") << "nothing changes before it is decided";
    releaseModifiers();
    EXPECT_TRUE(isActive("right"));
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "accepted right"}));
}

TEST_F(SelectionByUser, isThereAfterAQuickTap)
{
    open();
    pressKey(KEY_DOWN, modifiers());
    EXPECT_TRUE(isActive("below"));
}

TEST_F(SelectionByUser, holdsTheModifiersInAnyOrder)
{
    open();
    keyDown(modifiers().last());
    keyDown(modifiers().first());
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(says({"began", "moved to middle"}));
    releaseModifiers();
    EXPECT_TRUE(isActive("middle"));
}

TEST_F(SelectionByUser, changesItsMindWithEscape)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    pressKey(KEY_ESC);
    EXPECT_TRUE(says({"began", "moved to middle", "cancelled"}));
    releaseModifiers();
    waitForWindowManager();
    EXPECT_EQ(activeWindowTitle(), u"left");
}

TEST_F(SelectionByUser, pressesTheModifiersTwiceAndWalksWithoutThem)
{
    open();
    pressModifiersTwice();
    EXPECT_TRUE(says({"began"}));
    pressKey(KEY_RIGHT);
    pressKey(KEY_RIGHT);
    pressKey(KEY_ENTER);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "accepted right"}));
    EXPECT_TRUE(isActive("right"));
}

TEST_F(SelectionByUser, pressesTheModifiersTwiceAndChangesItsMind)
{
    open();
    pressModifiersTwice();
    EXPECT_TRUE(says({"began"}));
    pressKey(KEY_RIGHT);
    pressKey(KEY_ESC);
    EXPECT_TRUE(says({"began", "moved to middle", "cancelled"}));
    waitForWindowManager();
    EXPECT_EQ(activeWindowTitle(), u"left");
}

TEST_F(SelectionByUser, goesBackWithReturn)
{
    open();
    pressKey(KEY_RIGHT, modifiers());
    ASSERT_TRUE(isActive("middle"));
    pressKey(KEY_ENTER, modifiers());
    EXPECT_TRUE(isActive("left"));
}

TEST_F(SelectionByUser, isNotLeftWithTheMarkOfAWindowThatTakesNoFocus)
{
    open();
    constexpr quint32 inputIsTold = 1;
    WindowOfAnotherProgram unwilling("unwilling", {460, 500, 250, 200});
    unwilling.set("WM_HINTS", "WM_HINTS", {inputIsTold, 0, 0, 0, 0, 0, 0, 0, 0});
    ASSERT_TRUE(unwilling.show());
    turnToWindow(desktopWindows().first().id);
    ASSERT_TRUE(isActive("left"));
    holdModifiers();
    pressKey(KEY_DOWN);
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to below", "moved to unwilling"}));
    EXPECT_GT(marksOnScreen(), 0);
    releaseModifiers();
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    EXPECT_FALSE(steps().last().startsWith("refused")) << "the verdict comes much later";
    // Some managers name it the active window all the same.
    EXPECT_TRUE(waitUntil([] { return activeWindowTitle() == "unwilling"; }, 1000)
        || says({"began", "moved to below", "moved to unwilling", "accepted unwilling",
            "refused: “unwilling” did not come to the front"}));
}
