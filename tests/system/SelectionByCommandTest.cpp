// The real agent, windows and a window manager, and a script that walks among them; its user goes on typing.

#include "KTXConstants.h"
#include "LoginManager.h"
#include "OtherClient.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

class SelectionByCommand : private WithLoginManager, public SelectionSession
{
protected:
    SelectionByCommand() : SelectionSession(WithLoginManager::loginManager.variables()) { }

    LoginManager &loginManager() { return WithLoginManager::loginManager; }

    static testing::AssertionResult does(const QStringList &arguments)
    {
        const ProgramResult result = runAgent(arguments);
        if (result.status == 0 && (result.output + result.errors).empty())
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << result.status << ' ' << result.output << result.errors;
    }
    static bool nothingIsMarked()
    {
        return waitUntil([] { return marksOnScreen() == 0; });
    }
};

} // namespace

TEST_F(SelectionByCommand, walksToAWindowAndTurnsToIt)
{
    open();
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() > 0; }));
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_EQ(activeWindowTitle(), u"left") << "nothing changes before it is decided";
    EXPECT_TRUE(does({"--accept"}));
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "accepted right"}));
    EXPECT_TRUE(isActive("right"));
    EXPECT_TRUE(nothingIsMarked());
}

TEST_F(SelectionByCommand, goesInEachDirection)
{
    open();
    EXPECT_TRUE(does({"--move", "down"}));
    EXPECT_TRUE(does({"--move", "up"}));
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_TRUE(does({"--move", "left"}));
    EXPECT_TRUE(does({"--move", "under"}));
    EXPECT_TRUE(waitUntil([this] { return steps().size() == 6; }));
    EXPECT_EQ(steps().first(5),
        QStringList({"began", "moved to below", "moved to left", "moved to middle", "moved to left"}));
    EXPECT_TRUE(steps().last().startsWith("moved to "));
    EXPECT_NE(steps().last(), "moved to left");
}

TEST_F(SelectionByCommand, leavesEverythingAsItWasWhenItIsCancelled)
{
    open();
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_TRUE(does({"--cancel"}));
    EXPECT_TRUE(says({"began", "moved to middle", "cancelled"}));
    waitForWindowManager();
    EXPECT_EQ(activeWindowTitle(), u"left");
    EXPECT_TRUE(nothingIsMarked());
}

TEST_F(SelectionByCommand, takesNoKeyFromTheActiveProgram)
{
    open({{KTXVisualMode, true}});
    OtherClient program;
    program.takeFocus();
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_FALSE(program.isHeldElsewhere(KEY_1, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1)) << "no digits come up";
    pressKey(KEY_Q);
    pressKey(KEY_RIGHT);
    pressKey(KEY_ESC);
    pressKey(KEY_1, modifiers());
    EXPECT_TRUE(waitUntil([&] { return program.pressedKeys().contains(KEY_1); }));
    EXPECT_EQ(program.pressedKeys(), QList<int>({KEY_Q, KEY_RIGHT, KEY_ESC}) + modifiers() + QList<int>({KEY_1}));
    EXPECT_TRUE(program.grabKeyboard());
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right"}));
    EXPECT_TRUE(does({"--cancel"}));
}

TEST_F(SelectionByCommand, goesOnWithTheKeysOfLumaroo)
{
    open();
    EXPECT_TRUE(does({"--move", "right"}));
    pressKey(KEY_RIGHT, modifiers());
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right"})) << "it stays when the modifiers are let go";
    pressKey(KEY_ENTER, modifiers());
    EXPECT_TRUE(isActive("right"));
}

TEST_F(SelectionByCommand, movesASelectionThatTheKeysHaveBegun)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle"}));
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right"}));
    releaseModifiers();
    EXPECT_TRUE(isActive("right"));
}

TEST_F(SelectionByCommand, needsNoCombination)
{
    open({{KTXActivateDoubleClick, true}});
    EXPECT_TRUE(does({"--move", "down"}));
    EXPECT_TRUE(does({"--accept"}));
    EXPECT_TRUE(isActive("below"));
}

TEST_F(SelectionByCommand, endsWithALockedSession)
{
    open();
    EXPECT_TRUE(does({"--move", "right"}));
    loginManager().lock();
    EXPECT_TRUE(says({"began", "moved to middle", "cancelled"}));
    EXPECT_TRUE(nothingIsMarked());
}

TEST_F(SelectionByCommand, endsWithTheAgent)
{
    open();
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_TRUE(does({"--quit"}));
    EXPECT_TRUE(says({"began", "moved to middle", "cancelled"}));
    EXPECT_TRUE(nothingIsMarked());
}
