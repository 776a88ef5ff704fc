// Thousands of real presses among real windows: whatever is pressed, the user ends where the rule says.

#include "SelectionSession.h"
#include "Wait.h"
#include "agent/selection/Selection.h"
#include "agent/windows/WindowSystem.h"

#include <linux/input-event-codes.h>
#include <optional>
#include <random>

namespace {

constexpr int layouts = 20, gesturesOfALayout = 20, pressesOfAGesture = 5;
static_assert(layouts * gesturesOfALayout * pressesOfAGesture == 2000);

struct Key
{
    int evdevCode;
    Movement movement;
};
constexpr Key keys[]{{KEY_LEFT, Movement::Left}, {KEY_RIGHT, Movement::Right}, {KEY_UP, Movement::Up},
    {KEY_DOWN, Movement::Down}, {KEY_SLASH, Movement::Under}};

/// The windows from top to bottom, behind the active one.
QList<quint32> stackOf(const WindowWorld &world)
{
    QList<quint32> stack{world.activeWindow};
    for (const WindowDescription &window : world.windows)
        stack += window.windowID;
    return stack;
}

class SelectionRandom : public SelectionSession
{
protected:
    int number(int below) { return int(random_() % unsigned(below)); }

    void openWindows(std::deque<WindowOfAnotherProgram> &windows)
    {
        for (int i = 2 + number(8); i > 0; --i) {
            windows.emplace_back(
                QString::number(i), QRect(number(900), 20 + number(600), 120 + number(300), 100 + number(300)));
            ASSERT_TRUE(windows.back().show());
        }
        waitForWindowManager();
    }

    WindowWorld world() const
    {
        WindowFailure failure{};
        const auto world = system_->read({}, &failure);
        EXPECT_TRUE(world) << qPrintable(clause(failure));
        return world.value_or(WindowWorld());
    }
    /// Where the rule leads in the world as it is now, while the same keys are pressed. No value where a busy window
    /// manager has changed the stack meanwhile: then nobody knows which one the agent has seen.
    std::optional<quint32> walk()
    {
        const WindowWorld world = this->world();
        Selection selection{{}};
        EXPECT_TRUE(selection.begin(world));
        holdModifiers();
        for (int press = 0; press < pressesOfAGesture; ++press) {
            const Key &key = keys[number(std::size(keys))];
            selection.move(key.movement, MovementKind::Press, world);
            pressKey(key.evdevCode);
        }
        // Who lets go before the first press is handled means that one alone.
        presses_ += pressesOfAGesture;
        EXPECT_TRUE(waitUntil([this] { return agent.lines().filter("pressed").size() == presses_; }));
        const bool isSameWorld = stackOf(this->world()) == stackOf(world);
        releaseModifiers();
        return isSameWorld ? std::optional(selection.selected()) : std::nullopt;
    }

private:
    const std::unique_ptr<WindowSystem> system_ = windowSystem();
    std::mt19937 random_{20261122};
    qsizetype presses_ = 0;
};

} // namespace

TEST_F(SelectionRandom, endsWhereTheRuleLeads)
{
    ASSERT_TRUE(waitForLaunchOf(agent));
    qsizetype gestures = 0, certain = 0;
    for (int layout = 0; layout < layouts; ++layout) {
        std::deque<WindowOfAnotherProgram> windows;
        openWindows(windows);
        for (int gesture = 0; gesture < gesturesOfALayout; ++gesture) {
            const std::optional<quint32> expected = walk();
            ++gestures;
            ASSERT_TRUE(waitUntil([&] { return steps().filter("accepted").size() == gestures; }))
                << steps().join(u'\n').toStdString();
            certain += expected.has_value();
            ASSERT_TRUE(!expected || waitUntil([&] { return activeWindow() == *expected; }))
                << layout << ' ' << gesture << ' ' << steps().mid(steps().size() - 7).join(u'\n').toStdString();
            waitForWindowManager();
        }
    }
    EXPECT_GT(certain, gestures / 2);
}
