// Where a selection begins, and what becomes of it while windows come and go.

#include "DrawnWindows.h"
#include "agent/selection/Selection.h"

#include <gtest/gtest.h>
#include <string>

using namespace DrawnWindows;

namespace {

/// A selection in a world that changes.
struct Scene
{
    explicit Scene(WindowWorld inWorld, const SelectionRules &rules = {}) : world(std::move(inWorld)), selection(rules)
    {
        selection.begin(world);
    }

    char press(Movement movement)
    {
        selection.move(movement, MovementKind::Press, world);
        return char(selection.selected());
    }
    std::string press(std::initializer_list<Movement> movements)
    {
        std::string selected;
        for (const Movement movement : movements)
            selected += press(movement);
        return selected;
    }
    char afterFollowing()
    {
        selection.follow(world);
        return char(selection.selected());
    }
    void addBelow(char letter, const QRect &rect)
    {
        WindowDescription added = window(letter, rect);
        added.windowOrder = int(world.windows.size());
        world.windows.append(added);
    }

    WindowWorld world;
    Selection selection;
};

constexpr auto left = Movement::Left, right = Movement::Right, down = Movement::Down, under = Movement::Under;

WindowWorld row()
{
    return drawn({"AABBCCDD"});
}

char beginning(const WindowWorld &world)
{
    Selection selection(SelectionRules{});
    return selection.begin(world) ? char(selection.selected()) : '-';
}

} // namespace

TEST(SelectionLife, beginsAtTheActiveWindow)
{
    WindowWorld world = row();
    world.activeWindow = 'C';
    EXPECT_EQ(beginning(world), 'C');
}

TEST(SelectionLife, beginsAtTheTopmostWindowWhereTheActiveOneCannotBeSelected)
{
    WindowWorld world = row();
    world.activeWindow = 0;
    EXPECT_EQ(beginning(world), 'A');
    world.activeWindow = 'C';
    windowOf(world, 'C').windowIsIgnored = WindowIgnored::Type;
    EXPECT_EQ(beginning(world), 'A');
    windowOf(world, 'A').windowIsIgnored = WindowIgnored::Program;
    EXPECT_EQ(beginning(world), 'B');
}

TEST(SelectionLife, beginsAtAMinimisedWindowOnlyWhereNothingIsOnTheScreen)
{
    WindowWorld world = drawn({"AABB"});
    world.activeWindow = 0;
    windowOf(world, 'A').isMinimised = true;
    EXPECT_EQ(beginning(world), 'B');
    windowOf(world, 'B').windowRect = QRect();
    EXPECT_EQ(beginning(world), 'A');
}

TEST(SelectionLife, doesNotBeginWithoutWindows)
{
    EXPECT_EQ(beginning(placed({})), '-');
    Scene scene(placed({}));
    EXPECT_FALSE(scene.selection.move(right, MovementKind::Press, scene.world));
    EXPECT_EQ(scene.selection.selected(), 0U);
}

TEST(SelectionLife, beginsAnewWithNothingOfTheGestureBefore)
{
    Scene scene(row());
    scene.press({right, right});
    scene.world.activeWindow = 'B';
    scene.selection.begin(scene.world);
    EXPECT_EQ(scene.press({left, left}), "AD") << "nothing is taken back";
}

TEST(SelectionLife, takesWindowsThatAreGoneOutOfTheWayBack)
{
    Scene scene(row());
    EXPECT_EQ(scene.press({right, right, right}), "BCD");
    remove(scene.world, 'C');
    EXPECT_EQ(scene.press({left, left}), "BA");
}

TEST(SelectionLife, takesNothingBackToTheWindowWhereItIs)
{
    Scene scene(drawn({"....BB", "CCAA.."}));
    EXPECT_EQ(scene.press({right, down}), "BA");
    remove(scene.world, 'B');
    EXPECT_EQ(scene.press(left), 'C');
}

TEST(SelectionLife, goesOnFromTheWindowBeforeOneThatIsGone)
{
    Scene scene(row());
    EXPECT_EQ(scene.press({right, right}), "BC");
    remove(scene.world, 'C');
    EXPECT_EQ(scene.afterFollowing(), 'B');
    remove(scene.world, 'B');
    EXPECT_EQ(scene.afterFollowing(), 'A');
}

TEST(SelectionLife, movesOnFromThereInTheSamePress)
{
    Scene scene(row());
    EXPECT_EQ(scene.press({right, right}), "BC");
    remove(scene.world, 'C');
    EXPECT_EQ(scene.press(right), 'D');
}

TEST(SelectionLife, goesOnFromTheFirstWindowWhereThereIsNoWayBack)
{
    Scene scene(row());
    scene.world.activeWindow = 'B';
    scene.selection.begin(scene.world);
    EXPECT_EQ(scene.press({under, under}), "CD");
    windowOf(scene.world, 'D').windowIsIgnored = WindowIgnored::Minimised;
    EXPECT_EQ(scene.afterFollowing(), 'B');
}

TEST(SelectionLife, goesOnFromTheTopmostWindowWhereTheFirstIsGoneToo)
{
    Scene scene(row());
    scene.world.activeWindow = 'C';
    scene.selection.begin(scene.world);
    EXPECT_EQ(scene.press(under), 'D');
    remove(scene.world, 'C');
    remove(scene.world, 'D');
    EXPECT_EQ(scene.afterFollowing(), 'A');
    remove(scene.world, 'A');
    remove(scene.world, 'B');
    EXPECT_EQ(scene.afterFollowing(), char(0));
}

TEST(SelectionLife, beginsAnotherRowThere)
{
    Scene scene(drawn({"AABB..EE", "........", "CC..DD.."}));
    EXPECT_EQ(scene.press(right), 'B');
    remove(scene.world, 'A');
    EXPECT_EQ(scene.afterFollowing(), 'B');
    remove(scene.world, 'B');
    EXPECT_EQ(scene.afterFollowing(), 'C');
    EXPECT_EQ(scene.press(right), 'D');
}

TEST(SelectionLife, takesTheSelectedWindowForTheFirstWhereThatIsGone)
{
    Scene scene(placed({
        window('A', {0, 0, 100, 900}),
        window('B', {400, 200, 500, 100}),
        window('C', {500, 0, 100, 100}),
        window('D', {150, 400, 100, 100}),
    }));
    EXPECT_EQ(scene.press({right, right, right}), "DBC") << "by their left edges, seen from A";
    remove(scene.world, 'A');
    EXPECT_EQ(scene.press(right), 'B') << "whose middle lies to the right of C";
}

TEST(SelectionLife, hasNewWindowsJoin)
{
    Scene scene(drawn({"AABB"}));
    scene.addBelow('C', {400, 0, 200, 100});
    EXPECT_EQ(scene.press({right, right}), "BC");
}

TEST(SelectionLife, hasNewWindowsJoinTheRingLast)
{
    Scene scene(row());
    EXPECT_EQ(scene.press(under), 'B');
    scene.addBelow('E', {100, 0, 200, 100});
    EXPECT_EQ(scene.press({under, under, under, under}), "CDEA");
}

TEST(SelectionLife, takesWindowsThatAreGoneOutOfTheRing)
{
    Scene scene(row());
    EXPECT_EQ(scene.press(under), 'B');
    remove(scene.world, 'C');
    EXPECT_EQ(scene.press({under, under, under}), "DAB");
}

TEST(SelectionLife, digsUpMinimisedWindowsAndThoseOffTheScreenLast)
{
    Scene scene(drawn({"AABBCCDD"}));
    windowOf(scene.world, 'B').isMinimised = true;
    windowOf(scene.world, 'C').windowRect = QRect();
    EXPECT_EQ(scene.press({under, under, under, under}), "DBCA");
}

TEST(SelectionLife, walksFromTheMiddleOfTheScreenWhereNothingOfTheWindowCouldShow)
{
    WindowWorld world = drawn({"BB....CC"});
    world.windows.prepend(window('A', QRect()));
    world.monitors = {{QRect(0, 0, 800, 100)}, {QRect(800, 0, 800, 100)}};
    world.activeWindow = 'A';
    EXPECT_EQ(Scene(world).press(right), 'C');
    EXPECT_EQ(Scene(world).press(left), 'B');
    EXPECT_EQ(Scene(world).press({right, left}), "CA");
}

TEST(SelectionLife, walksPastMinimisedWindows)
{
    Scene scene(row());
    windowOf(scene.world, 'B').isMinimised = true;
    EXPECT_EQ(scene.press({right, right}), "CD");
}

TEST(SelectionLife, staysOnTheRingToTheEndOfTheGesture)
{
    const QRect screen(0, 0, 2000, 1000);
    Scene scene(placed({window('A', screen), window('B', screen)}));
    EXPECT_EQ(scene.press(right), 'B');
    scene.world = placed({window('A', {0, 0, 400, 400}), window('B', {500, 0, 400, 400}),
        window('C', {1000, 0, 400, 400}), window('D', {500, 500, 400, 400})});
    EXPECT_EQ(scene.press({right, down, left}), "CDC");
    scene.selection.begin(scene.world);
    EXPECT_EQ(scene.press({right, down}), "BD");
}

TEST(SelectionLife, goesToALabelledWindowWithoutAWayBack)
{
    Scene scene(row());
    scene.press(right);
    scene.selection.select('D');
    EXPECT_EQ(scene.selection.selected(), quint32('D'));
    EXPECT_EQ(scene.press(left), 'C');
}
