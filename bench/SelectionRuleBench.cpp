// What the rule of movement costs one press with 10, 100 and 1,000 windows, free ones, cascading ones and small ones
// that pierce large ones, against a bare pass over the same rectangles pairwise in the same run.

#include "agent/selection/Selection.h"
#include "bench/Median.h"

#include <QElapsedTimer>
#include <array>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr int rounds = 31;
constexpr QSize screen(1920, 1080);

using Layout = QRect (*)(int, int, std::mt19937 &);

int below(unsigned limit, std::mt19937 &random)
{
    return int(random() % limit);
}

QRect freeOne(int, int, std::mt19937 &random)
{
    const QRect window(below(1800, random), below(1000, random), 120 + below(900, random), 80 + below(600, random));
    return window & QRect(QPoint(), screen);
}

QRect cascadingOne(int place, int, std::mt19937 &)
{
    return {(place * 7) % 1000, (place * 5) % 500, 800, 500};
}

/// Half of them small ones on top, and full screens below.
QRect piercedOne(int place, int count, std::mt19937 &random)
{
    if (place >= count / 2)
        return {QPoint(), screen};
    return {below(1900, random), below(1060, random), 16, 16};
}

struct Case
{
    const char *name;
    Layout layout;
};

constexpr std::array cases{Case{"free", freeOne}, Case{"cascading", cascadingOne}, Case{"pierced", piercedOne}};

WindowWorld worldOf(Layout layout, int count)
{
    std::mt19937 random(1);
    WindowWorld world;
    world.monitors = {{QRect(QPoint(), screen)}};
    for (int place = 0; place < count; ++place) {
        WindowDescription window;
        window.windowID = quint32(place + 1);
        window.windowOrder = place;
        window.windowRect = layout(place, count, random);
        world.windows += window;
    }
    world.activeWindow = 1;
    return world;
}

template <typename Work>
double microseconds(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1000;
}

/// Keeps the compiler from leaving the passes out.
volatile int overlaps = 0;

void passPairwise(const WindowWorld &world)
{
    int found = 0;
    for (const WindowDescription &one : world.windows) {
        for (const WindowDescription &other : world.windows)
            found += one.windowRect.intersects(other.windowRect);
    }
    overlaps = found;
}

void measure(const Case &which, int count, Movement movement, const char *key)
{
    const WindowWorld world = worldOf(which.layout, count);
    std::vector<double> moves, passes;
    for (int round = 0; round < rounds; ++round) {
        Selection selection(SelectionRules{});
        selection.begin(world);
        passes.push_back(microseconds([&world] { passPairwise(world); }));
        moves.push_back(microseconds([&] { selection.move(movement, MovementKind::Press, world); }));
    }
    std::printf("%s in %d %s windows: %.1f us; pairwise pass: %.1f us; ratio %.2f (goal: below 10,000 us; medians of "
                "%d)\n",
        key, count, which.name, median(moves), median(passes), median(moves) / median(passes), rounds);
}

} // namespace

int main()
{
    for (const Case &which : cases) {
        for (const int count : {10, 100, 1000})
            measure(which, count, Movement::Right, "right");
    }
    measure(cases.front(), 1000, Movement::Under, "under");
    return 0;
}
