// The real agent, windows and a window manager, and a user who walks among them with the keyboard.

#include "AgentProgram.h"
#include "AgentSession.h"
#include "DesktopWindows.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "Wait.h"
#include "WindowOfAnotherProgram.h"

#include <linux/input-event-codes.h>
#include <thread>

namespace {

const QList<int> controlAndAlt{KEY_LEFTCTRL, KEY_LEFTALT};

class SelectionByUser : public AgentSessionAfterFirstLaunch
{
protected:
    /// Three in a row with a fourth below the first, and the agent beside them. The first has the focus.
    void open(const QVariantMap &settings = {})
    {
        QVariantMap all = stored();
        all.insert(settings);
        store(all);
        const QList<std::pair<const char *, QPoint>> places{
            {"left", {50, 50}}, {"middle", {400, 60}}, {"right", {800, 70}}, {"below", {60, 500}}};
        for (const auto &[title, place] : places) {
            windows_.emplace_back(title, QRect(place, QSize(250, 200)));
            ASSERT_TRUE(windows_.back().show());
        }
        turnToWindow(windows_.front().id());
        ASSERT_TRUE(waitUntil([] { return activeWindowTitle() == u"left"; }));
        ASSERT_TRUE(agent.waitForLaunch());
    }

    static void holdModifiers()
    {
        for (const int key : controlAndAlt)
            keyDown(key);
    }
    static void releaseModifiers()
    {
        for (const int key : controlAndAlt)
            keyUp(key);
    }
    /// As a hand does: what goes faster is taken for a program's typing.
    static void pressTwice()
    {
        for (int i = 0; i < 2; ++i) {
            holdModifiers();
            std::this_thread::sleep_for(std::chrono::milliseconds(40));
            releaseModifiers();
        }
    }

    bool isActive(const QString &title)
    {
        return waitUntil([&] { return activeWindowTitle() == title; });
    }

    testing::AssertionResult says(const QStringList &lines)
    {
        const auto said = [this] { return agent.lines().filter(steps_); };
        if (waitUntil([&] { return said() == lines; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << agent.lines().join(u'\n').toStdString() << agent.errors().toStdString();
    }

    AgentProgram agent;

private:
    const QRegularExpression steps_{QStringLiteral("^(began|moved|accepted|cancelled|refused)")};
    std::vector<WindowOfAnotherProgram> windows_;
};

} // namespace

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
    pressKey(KEY_DOWN, controlAndAlt);
    EXPECT_TRUE(isActive("below"));
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
    pressTwice();
    EXPECT_TRUE(says({"began"}));
    pressKey(KEY_RIGHT);
    pressKey(KEY_RIGHT);
    pressKey(KEY_ENTER);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "accepted right"}));
    EXPECT_TRUE(isActive("right"));
}

TEST_F(SelectionByUser, goesBackWithReturn)
{
    open();
    pressKey(KEY_RIGHT, controlAndAlt);
    ASSERT_TRUE(isActive("middle"));
    pressKey(KEY_ENTER, controlAndAlt);
    EXPECT_TRUE(isActive("left"));
}
