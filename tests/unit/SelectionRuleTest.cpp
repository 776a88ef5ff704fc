// Where each movement key leads, on layouts that are drawn.

#include "DrawnWindows.h"
#include "agent/selection/Selection.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

using namespace DrawnWindows;

namespace {

/// A layout, the keys that are pressed on it, and the windows that are selected: the active one, then one for each key.
/// Keys: < > ^ v are presses and L R U D repeats of them, u is Under. A key that leads nowhere gives a -.
struct Row
{
    const char *says;
    WindowWorld world;
    std::string keys;
    std::string expected;
    SelectionRules rules{};
};

constexpr SortOrder first = SortOrder::FirstSelected;
constexpr SelectionRules noWrap{first, first, false, false, false};
constexpr SelectionRules wrapsHorizontally{first, first, true, false, false};
constexpr SelectionRules wrapsVertically{first, first, false, true, false};
constexpr SelectionRules ascending{first, first, true, true, true};

SelectionRules ordered(SortOrder order)
{
    return {order, first, true, true, false};
}

bool press(Selection &selection, char key, const WindowWorld &world)
{
    const std::string keys = "<>^vLRUD";
    constexpr std::array directions{Movement::Left, Movement::Right, Movement::Up, Movement::Down};
    const std::size_t place = keys.find(key);
    if (place == std::string::npos)
        return selection.move(Movement::Under, MovementKind::Press, world);
    return selection.move(directions[place % 4], place < 4 ? MovementKind::Press : MovementKind::Repeat, world);
}

std::string walk(const Row &row)
{
    WindowWorld world = row.world;
    world.activeWindow = quint32(row.expected.front());
    Selection selection(row.rules);
    std::string selected(1, selection.begin(world) ? char(selection.selected()) : '-');
    for (const char key : row.keys)
        selected += press(selection, key, world) ? char(selection.selected()) : '-';
    return selected;
}

/// The same with the two axes exchanged.
Row transposed(Row row)
{
    const std::string keys = "<>^vLRUD", others = "^v<>UDLR";
    for (char &key : row.keys)
        key = key == 'u' ? key : others[keys.find(key)];
    for (WindowDescription &window : row.world.windows)
        window.windowRect = window.windowRect.transposed().translated(
            window.windowRect.topLeft().transposed() - window.windowRect.topLeft());
    for (Monitor &monitor : row.world.monitors)
        monitor.rect = monitor.rect.transposed();
    std::swap(row.rules.horizontalOrder, row.rules.verticalOrder);
    std::swap(row.rules.wrapsHorizontally, row.rules.wrapsVertically);
    return row;
}

void expectWalks(const QList<Row> &rows)
{
    for (const Row &row : rows) {
        EXPECT_EQ(walk(row), row.expected) << row.says << ": " << row.keys;
        const Row other = transposed(row);
        EXPECT_EQ(walk(other), row.expected) << row.says << ", transposed: " << other.keys;
    }
}

const WindowWorld grid = drawn({
    "AABBCC",
    "AABBCC",
    "DDEEFF",
    "DDEEFF",
});

/// What the orders tell apart: all in one row, some within others.
const WindowWorld mixed = placed({
    window('B', {500, 100, 100, 100}),
    window('C', {300, 300, 400, 100}),
    window('D', {350, 500, 550, 100}),
    window('E', {420, 700, 360, 100}),
    window('A', {400, 0, 400, 900}),
});

const QRect wholeScreen{0, 0, 2000, 1000};
const WindowWorld maximised = placed({window('A', wholeScreen), window('B', wholeScreen), window('C', wholeScreen)});

/// A and C overlap, B and D stand apart.
const WindowWorld heap = placed({
    window('A', {0, 0, 400, 400}),
    window('B', {1000, 0, 400, 400}),
    window('C', {200, 200, 400, 400}),
    window('D', {1500, 600, 400, 400}),
});

WindowWorld stacked(const QRect &second)
{
    return placed({window('A', {100, 100, 900, 700}), window('B', second), window('C', {100, 100, 900, 700})});
}

} // namespace

TEST(SelectionRule, walksAlongRowsAndColumns)
{
    expectWalks({
        {"a row to the right", grid, ">>", "ABC"},
        {"a row to the left", grid, "<<", "FED"},
        {"through the grid", grid, ">v>", "ABEF"},
        {"over a gap", drawn({"AA....BB"}), ">", "AB"},
        {"one pixel of the band is enough",
            placed(
                {window('A', {0, 0, 200, 200}), window('B', {600, 199, 200, 200}), window('C', {300, 200, 200, 99})}),
            ">", "AB"},
        {"with one window nowhere", drawn({"AA"}), "><^vu", "A-----"},
    });
}

TEST(SelectionRule, wrapsAtTheEndOfTheRow)
{
    expectWalks({
        {"to the left end", grid, ">>>", "ABCA"},
        {"to the right end", grid, "<<", "BAC"},
        {"not where it is off", grid, ">", "C-", noWrap},
        {"horizontally only", grid, ">v", "FD-", wrapsHorizontally},
        {"vertically only", grid, ">v", "F-C", wrapsVertically},
        {"within the row, though others are further behind", drawn({"..AABB", "DD...."}), ">", "BA"},
    });
}

TEST(SelectionRule, takesBackTheLastMove)
{
    const WindowWorld diagonal = drawn({"AA....", "AA..BB", "....BB", "CCCCCC"});
    expectWalks({
        {"one", grid, "><", "ABA"},
        {"several", grid, ">v^<", "ABEBA"},
        {"over the screen's edge", grid, "><", "CAC"},
        {"where the rule alone leads elsewhere", diagonal, "v^", "BCB"},
        {"also to a covered window", drawn({"BBB.CC", "BBB.CC"}), "><", "BCB"},
        {"with a key that led nowhere between", drawn({"AABBCC"}), ">v<", "AB-A", noWrap},
        {"but not after Under", drawn({"AABBCC", "DDDDDD"}), ">u<", "ABCB"},
        {"and not by a held key", drawn({"AABBCC"}), "<R", "AC-"},
    });
}

TEST(SelectionRule, staysInTheBandInWhichTheRowBegan)
{
    const WindowWorld stairs = drawn({
        "AABB.....",
        "AABB..DD.",
        "..BBCCDD.",
        "..BBCC...",
        "..EE.FF..",
    });
    expectWalks({
        {"past what only a window on the way has beside it", stairs, ">>", "ABD"},
        {"another axis begins another row", stairs, ">v>", "ABEF"},
        {"which ends when it is taken back", stairs, ">v^>", "ABEBD"},
    });
}

TEST(SelectionRule, leavesTheRowOnlyWhereNothingIsBeyondInIt)
{
    const WindowWorld own = drawn({
        ".....DD",
        "AA.....",
        "..BB...",
        "..BBCC.",
    });
    WindowWorld startMinimised = drawn({"AA..", "..BB", "CCBB"});
    windowOf(startMinimised, 'A').isMinimised = true;
    expectWalks({
        {"first to what is beside the window itself", own, ">>", "ABC"},
        {"then to what is clear of it", drawn({"AA..", "..BB"}), ">", "AB"},
        {"the nearest across before the nearest along", drawn({"AA.....", "....CC.", "..BB..."}), ">", "AC"},
        {"one that reaches back comes after it", drawn({"AAA....", ".BBB...", "....CC."}), ">", "AC"},
        {"and is taken where nothing else is", drawn({"AAA.", ".BBB"}), ">", "AB"},
        {"but after the other end of the row", drawn({"DD.AAA.", "....BBB"}), ">", "AD"},
        {"unless that is off", drawn({"DD.AAA.", "....BBB"}), ">", "AB", noWrap},
        {"beside the window itself wraps too", startMinimised, ">>", "ABC"},
        {"last to what is behind elsewhere", drawn({"..AA", "BB.."}), ">", "AB"},
        {"unless that is off", drawn({"..AA", "BB.."}), ">", "A-", noWrap},
        {"nearest across, then furthest behind", drawn({"....AA", "CCBB..", "DD...."}), ">", "AC"},
    });
}

TEST(SelectionRule, prefersOfEqualPlaces)
{
    WindowWorld equalOrder = drawn({"AA.CC", "AA...", "AA.BB"});
    for (WindowDescription &window : equalOrder.windows)
        window.windowOrder = 0;
    WindowWorld higherNumber = drawn({"AA.CC", "AA...", "AA.BB"});
    windowOf(higherNumber, 'B').windowOrder = 3;
    std::reverse(equalOrder.windows.begin(), equalOrder.windows.end());
    expectWalks({
        {"the one nearer to the middle of the row", drawn({"AA.BB", "AA.CC", "AA..."}), ">", "AC"},
        {"then the one higher in the stack", drawn({"AA.CC", "AA...", "AA.BB"}), ">", "AB"},
        {"whatever its number", higherNumber, ">", "AC"},
        {"then the one with the smaller number", equalOrder, ">", "AB"},
    });
}

TEST(SelectionRule, goesByEachOrder)
{
    expectWalks({
        {"from the first one by the edge next to it", mixed, ">>", "ADE", ordered(SortOrder::FirstSelected)},
        {"to both sides, and round", mixed, "<<<", "ACBE", ordered(SortOrder::FirstSelected)},
        {"by the left edge", mixed, ">>>", "AEBC", ordered(SortOrder::NearEdge)},
        {"by the left edge back", mixed, "<<<", "ADCB", ordered(SortOrder::NearEdge)},
        {"by the right edge", mixed, ">>", "ADB", ordered(SortOrder::FarEdge)},
        {"by the right edge back", mixed, "<<<", "AECB", ordered(SortOrder::FarEdge)},
        {"by the centre, at which A and E are equal", mixed, ">>", "ADC", ordered(SortOrder::Center)},
        {"by the centre back", mixed, "<<<", "ABCD", ordered(SortOrder::Center)},
        {"by the leading edge", mixed, ">>", "ADB", ordered(SortOrder::LeadingEdge)},
        {"by the leading edge back", mixed, "<<<", "ADCB", ordered(SortOrder::LeadingEdge)},
    });
}

TEST(SelectionRule, keepsTheFirstOneAsTheMiddleOfTheOrder)
{
    const WindowWorld dialog = placed({window('A', {400, 300, 200, 200}), window('B', {0, 0, 1000, 800})});
    expectWalks({
        {"a parent begins to the left of its dialog", dialog, "<", "AB", noWrap},
        {"and is not to the right of it", dialog, ">", "A-", noWrap},
        {"a dialog begins to the right of its parent", dialog, ">", "BA", noWrap},
        {"and is not to the left of it", dialog, "<", "B-", noWrap},
        {"also from elsewhere", mixed, ">><<<", "ADEDAC", ordered(SortOrder::FirstSelected)},
    });
}

TEST(SelectionRule, goesRoundAmongEqualPlaces)
{
    const WindowWorld sameCentre = placed({
        window('A', {0, 100, 100, 100}),
        window('B', {0, 0, 300, 300}),
        window('C', {0, 400, 100, 100}),
    });
    const WindowWorld column = drawn({"AA", "BB", "CC"});
    expectWalks({
        {"down the column", column, ">>>", "ABCA"},
        {"up the column", column, "<", "AC"},
        {"and back", column, "<>", "ACA"},
        {"not where it is off", column, "><", "A--", noWrap},
        {"not by a held key", column, "R", "A-"},
        {"of equal middles down the stack", sameCentre, ">>>", "ABCA", ordered(SortOrder::NearEdge)},
    });
}

TEST(SelectionRule, walksDownTheStackWhereNothingElseShows)
{
    const WindowWorld cover = placed({window('B', wholeScreen), window('A', {100, 100, 500, 500})});
    expectWalks({
        {"on maximised windows", maximised, ">>>", "ABCA"},
        {"and up it", maximised, "<<<", "ACBA"},
        {"there and back", maximised, "><v^", "ABABA"},
        {"whatever wraps", maximised, ">>>", "ABCA", noWrap},
        {"on one ring with Under", maximised, "u>u<", "ABCAC"},
        {"the other way round", maximised, ">u<", "ACBC", ascending},
        {"where edges are 32 px apart", stacked({132, 132, 900, 700}), ">>", "ABC"},
        {"not where one is 33 px apart", stacked({133, 132, 900, 700}), ">>", "ABA"},
        {"not where the far one is", stacked({100, 100, 933, 700}), ">>", "ABA"},
        {"nor where the near one is", stacked({67, 100, 933, 700}), ">>", "ABA"},
        {"under one that covers all", cover, ">>", "BAB"},
        {"but a move is taken back first", cover, "><>", "ABAB"},
        {"not by a held key", maximised, "R", "A-"},
        {"on which a held key goes on", maximised, ">RR", "ABCA"},
    });
}

TEST(SelectionRule, stopsAHeldKeyAtTheEndOfTheRow)
{
    expectWalks({
        {"and the next press wraps", drawn({"AABBCC"}), ">RRR>", "ABC--A"},
        {"beside it too", drawn({"AA..", "..BB"}), "RR", "AB-"},
        {"not going on to what reaches back", drawn({"AAA.", ".BBB"}), "R", "A-"},
        {"to the other side", drawn({"AABBCC"}), "LL", "BA-"},
    });
}

TEST(SelectionRule, digsUnderTheSelectedWindow)
{
    expectWalks({
        {"first what overlaps it, then the rest", heap, "uuuu", "ACBDA"},
        {"from it down, and round from the top", heap, "uuuu", "CADBC"},
        {"up the stack", heap, "uuuu", "ADBCA", ascending},
        {"anew after a direction", heap, "u>u", "ACBC"},
    });
}
