// From a showing until its pixels have changed, against the least that can be had: a bare client that configures, cuts
// and maps one window. Each has its pixels read from the server's own memory, so the display is one of its own.

#include "agent/overlay/Overlay.h"
#include "bench/Median.h"
#include "bench/SeenDisplay.h"

#include <QCoreApplication>
#include <cstdio>

namespace {

constexpr int rounds = 500, warmUpRounds = 20;

/// Microseconds; negative when the pixel did not change.
template <typename Show>
double timeUntilSeen(const SeenDisplay &display, const QRect &rect, quint32 color, Show &&show)
{
    const Clock::time_point start = Clock::now();
    show();
    if (!display.waitForPixel(rect.x() + 3, rect.y() + rect.height() / 2, color))
        return -1;
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

constexpr quint32 ours = 0x2060c0, floorColor = 0x20c060;

struct Times
{
    std::vector<double> first, next, floor;
};

bool measureRound(const SeenDisplay &display, Overlay &mark, BareWindow &bare, int round, Times &times)
{
    OverlayView view;
    view.monitor = {{0, 0, screenWidth, screenHeight}, 1, 60};
    view.windowRect = {20 + round % 7 * 10, 40, 300 + round % 11 * 20, 400};
    const quint32 ground = display.pixel(screenWidth - 1, 0);
    const auto show = [&] { mark.showOverlay(view); };
    times.first.push_back(timeUntilSeen(display, view.windowRect, ours, show));
    QCoreApplication::processEvents();
    view.windowRect.translate(400, 300);
    view.windowRect.setWidth(view.windowRect.width() + 33);
    times.next.push_back(timeUntilSeen(display, view.windowRect, ours, show));
    QCoreApplication::processEvents();
    mark.hideOverlay();
    const QRect &rect = view.windowRect;
    const bool isHidden = display.waitForPixel(rect.x() + 3, rect.y() + rect.height() / 2, ground);
    times.floor.push_back(timeUntilSeen(display, rect, floorColor, [&] { bare.show(rect); }));
    bare.hide();
    return isHidden && display.waitForPixel(rect.x() + 3, rect.y() + rect.height() / 2, ground)
        && times.first.back() >= 0 && times.next.back() >= 0 && times.floor.back() >= 0;
}

void print(const char *what, const std::vector<double> &figures, const std::vector<double> &floors)
{
    std::printf("%s: %.0f us; a bare window: %.0f us; %.0f us more (goal: at most 1500; medians of %zu)\n", what,
        median(figures), median(floors), median(figures) - median(floors), figures.size());
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const SeenDisplay display;
    if (!display.isThere()) {
        std::fputs("OverlayBench: no X server with its picture in a file\n", stderr);
        return 1;
    }
    const auto mark = overlay();
    mark->setStyle({NSColor::colorWithDeviceRGBA(0x20 / 255.0F, 0x60 / 255.0F, 0xc0 / 255.0F, 1), false});
    BareWindow bare(floorColor);
    Times times, warmUp;
    for (int round = -warmUpRounds; round < rounds; ++round) {
        if (!measureRound(display, *mark, bare, round + warmUpRounds, round < 0 ? warmUp : times)) {
            std::fputs("OverlayBench: the mark was not seen\n", stderr);
            return 1;
        }
    }
    print("first showing until it is seen", times.first, times.floor);
    print("next one, of another size", times.next, times.floor);
    return 0;
}
