// What holds of the movement keys on any layout: random ones, each by a seed that a failure names.

#include "PlainSelection.h"
#include "RandomWindows.h"
#include "agent/selection/Selection.h"

#include <QSet>
#include <array>
#include <deque>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>

namespace {

constexpr quint32 layouts = 720; // sixty of each kind
constexpr quint32 layoutsOfWays = 516; // that have every way on them walked
constexpr int presses = 50; // on each layout, held against the plain rule: 36,000 in all
constexpr int fewPresses = 15; // for what should follow from it
constexpr std::array movements{Movement::Left, Movement::Right, Movement::Up, Movement::Down, Movement::Under};

SelectionRules randomRules(RandomNumbers &random)
{
    const auto order = [&random] { return SortOrder(random.below(5)); };
    return {order(), order(), random.oneIn(2), random.oneIn(2), random.oneIn(2)};
}

Movement randomMovement(RandomNumbers &random)
{
    return random.oneIn(12) ? Movement::Under : movements.at(std::size_t(random.below(4)));
}

/// A gesture on a random layout, which remembers its keys for a failure's message.
struct Gesture
{
    explicit Gesture(quint32 withSeed)
        : seed(withSeed), random(~withSeed), world(randomWorld(withSeed)), rules(randomRules(random)), selection(rules)
    {
        isBegun = selection.begin(world);
    }

    bool press(Movement movement, MovementKind kind = MovementKind::Press)
    {
        keys += "<>^vu"[int(movement)];
        keys += kind == MovementKind::Repeat ? "(held)" : "";
        return selection.move(movement, kind, world);
    }
    std::string trace() const { return "seed " + std::to_string(seed) + ", keys " + keys; }

    quint32 seed;
    RandomNumbers random;
    WindowWorld world;
    SelectionRules rules;
    Selection selection;
    std::string keys;
    bool isBegun = false;
};

template <typename Check>
void onEachLayout(Check check)
{
    for (quint32 seed = 0; seed < layouts && !testing::Test::HasFailure(); ++seed) {
        Gesture gesture(seed);
        if (gesture.isBegun)
            check(gesture);
    }
}

QSet<quint32> candidates(const WindowWorld &world)
{
    QSet<quint32> found;
    for (const WindowDescription &window : world.windows) {
        if (window.isCandidate())
            found += window.windowID;
    }
    return found;
}

/// A window disappears, comes back from being hidden, moves, or a new one opens.
void changeSomething(WindowWorld &world, RandomNumbers &random)
{
    const int count = int(world.windows.size());
    const int chosen = count == 0 ? 0 : random.below(count);
    if (count == 0 || random.oneIn(3)) {
        WindowDescription added;
        added.windowID = 1000 + quint32(random.below(1'000'000));
        added.windowRect = {random.below(1500), random.below(800), random.between(1, 900), random.between(1, 700)};
        world.windows.insert(chosen, added);
    } else if (random.oneIn(2)) {
        world.windows.removeAt(chosen);
    } else {
        WindowDescription &window = world.windows[chosen];
        window.isMinimised = !window.isMinimised;
        window.windowIsIgnored = random.oneIn(2) ? WindowIgnored::No : WindowIgnored::Minimised;
    }
    for (qsizetype i = 0; i < world.windows.size(); ++i)
        world.windows[i].windowOrder = int(i);
}

constexpr std::array directions{Movement::Left, Movement::Right, Movement::Up, Movement::Down};

struct Way
{
    Selection selection;
    Movement next;
};

/// The windows that the four keys lead to from the one where the selection is, until those that are looked for are
/// found. Each window is left in each direction once for each axis on which it is entered: rows begin or go on there.
QSet<quint32> reachable(const Selection &start, const WindowWorld &world, const QSet<quint32> &lookedFor)
{
    QSet<quint32> found{start.selected()};
    std::set<std::tuple<quint32, Movement, Axis>> walked;
    std::deque<Way> ways;
    for (const Movement next : directions)
        ways.push_back({start, next});
    while (!ways.empty() && !found.contains(lookedFor)) {
        Way way = ways.front();
        ways.pop_front();
        way.selection.move(way.next, MovementKind::Press, world);
        const quint32 selected = way.selection.selected();
        found += selected;
        for (const Movement next : directions) {
            const std::tuple left(selected, next, axisOf(way.next));
            if (next == oppositeOf(way.next) || walked.contains(left))
                continue;
            walked.insert(left);
            ways.push_back({way.selection, next});
        }
    }
    return found;
}

QSet<quint32> numbersOf(const WindowList &windows)
{
    QSet<quint32> found;
    for (const WindowDescription *window : windows)
        found += window->windowID;
    return found;
}

} // namespace

TEST(SelectionProperties, leadWhereThePlainRuleSays)
{
    int compared = 0;
    onEachLayout([&compared](Gesture &gesture) {
        PlainSelection plain(gesture.rules, gesture.world, gesture.selection.selected());
        for (int i = 0; i < presses; ++i, ++compared) {
            const Movement movement = randomMovement(gesture.random);
            const MovementKind kind = gesture.random.oneIn(6) ? MovementKind::Repeat : MovementKind::Press;
            gesture.press(movement, kind);
            ASSERT_EQ(gesture.selection.selected(), plain.press(movement, kind)) << gesture.trace();
        }
    });
    EXPECT_EQ(compared, 36'000);
}

TEST(SelectionProperties, stayInTheRowWhileItHasAWindowBeyond)
{
    int rows = 0;
    onEachLayout([&rows](Gesture &gesture) {
        PlainSelection plain(gesture.rules, gesture.world, gesture.selection.selected());
        for (int i = 0; i < fewPresses; ++i) {
            const Movement movement = randomMovement(gesture.random);
            const std::vector<quint32> beyond = plain.beyondInRow(movement);
            const bool isStep = movement != Movement::Under && !plain.wouldReturn(movement);
            plain.press(movement, MovementKind::Press);
            gesture.press(movement);
            if (!isStep || plain.isOnRing() || beyond.empty())
                continue;
            ASSERT_NE(std::find(beyond.begin(), beyond.end(), gesture.selection.selected()), beyond.end())
                << gesture.trace();
            ++rows;
        }
    });
    EXPECT_GT(rows, 2000);
}

TEST(SelectionProperties, areTheSameEachTime)
{
    onEachLayout([](Gesture &gesture) {
        Gesture again(gesture.seed);
        for (int i = 0; i < fewPresses; ++i) {
            const Movement movement = randomMovement(gesture.random);
            const bool moved = gesture.press(movement);
            ASSERT_EQ(again.press(movement), moved) << gesture.trace();
            ASSERT_EQ(again.selection.selected(), gesture.selection.selected()) << gesture.trace();
        }
    });
}

TEST(SelectionProperties, returnByTheOppositeKey)
{
    onEachLayout([](Gesture &gesture) {
        for (int i = 0; i < fewPresses; ++i) {
            const Movement movement = randomMovement(gesture.random);
            const quint32 before = gesture.selection.selected();
            const bool isMove = gesture.press(movement);
            if (!isMove || movement == Movement::Under)
                continue;
            Selection back = gesture.selection;
            ASSERT_TRUE(back.move(oppositeOf(movement), MovementKind::Press, gesture.world)) << gesture.trace();
            ASSERT_EQ(back.selected(), before) << gesture.trace();
        }
    });
}

TEST(SelectionProperties, visitEveryWindowByUnder)
{
    onEachLayout([](Gesture &gesture) {
        for (int i = gesture.random.below(6); i > 0; --i)
            gesture.press(movements.at(std::size_t(gesture.random.below(4))));
        const QSet<quint32> all = candidates(gesture.world);
        QSet<quint32> visited{gesture.selection.selected()};
        for (qsizetype i = 1; i < all.size(); ++i) {
            gesture.press(Movement::Under);
            visited += gesture.selection.selected();
        }
        ASSERT_EQ(visited, all) << gesture.trace();
    });
}

TEST(SelectionProperties, leadFromEveryVisibleWindowToEveryOther)
{
    qsizetype pairs = 0, unreachable = 0;
    std::string where;
    for (quint32 seed = 0; seed < layoutsOfWays; ++seed) {
        WindowWorld world = randomWorld(seed);
        const QSet<quint32> visible = numbersOf(visibleWindows(world));
        for (const quint32 start : visible) {
            world.activeWindow = start;
            Selection selection(SelectionRules{});
            ASSERT_TRUE(selection.begin(world));
            const qsizetype missing = (visible - reachable(selection, world, visible)).size();
            pairs += visible.size() - 1;
            unreachable += missing;
            where += missing == 0 ? "" : " " + std::to_string(seed);
        }
    }
    EXPECT_GT(pairs, 10'000);
    EXPECT_LE(unreachable * 1000, pairs) << "seeds" << where;
}

TEST(SelectionProperties, holdWhileWindowsComeAndGo)
{
    onEachLayout([](Gesture &gesture) {
        for (int i = 0; i < fewPresses; ++i) {
            changeSomething(gesture.world, gesture.random);
            const quint32 before = gesture.selection.selected();
            const bool isMove = gesture.press(randomMovement(gesture.random));
            const quint32 after = gesture.selection.selected();
            const QSet<quint32> all = candidates(gesture.world);
            ASSERT_TRUE(all.isEmpty() ? after == 0 : all.contains(after)) << gesture.trace();
            ASSERT_TRUE(!isMove || after != before || !all.contains(before)) << gesture.trace();
        }
    });
}
