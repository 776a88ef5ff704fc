// How long one reading of all windows takes, with 10, 100 and 1,000 of them, against as many bare round trips as a
// reading cannot do without. Needs a display with a window manager.

#include "agent/windows/WindowSystem.h"
#include "bench/Median.h"
#include "platform/foundation/system/X11.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <poll.h>

namespace {

constexpr int rounds = 50;
constexpr int roundTrips = 2;
constexpr int longestWait = 120000; // milliseconds

/// Another program, with many windows.
class OtherProgram
{
public:
    void openUpTo(int count)
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
        for (; windows_ < count; ++windows_) {
            const xcb_window_t window = xcb_generate_id(connection_.get());
            const auto x = qint16(windows_ % 40 * 30), y = qint16(windows_ / 40 * 30);
            xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, screen->root, x, y, 20, 20, 0,
                XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
            xcb_change_property(
                connection_.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 6, "Window");
            // The manager need not look for a place.
            constexpr quint32 userChosePlace[18]{1};
            xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS,
                XCB_ATOM_WM_SIZE_HINTS, 32, std::size(userChosePlace), userChosePlace);
            xcb_map_window(connection_.get(), window);
        }
        wait();
    }
    void wait() const
    {
        fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    }

private:
    const XConnection connection_ = connectToXServer();
    int windows_ = 0;
};

template <typename Operation>
double milliseconds(Operation &&operation)
{
    QElapsedTimer timer;
    timer.start();
    operation();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Waits until the manager has taken over so many windows.
bool managesAll(WindowSystem &system, int count)
{
    QElapsedTimer timer;
    timer.start();
    WindowFailure failure{};
    while (timer.elapsed() < longestWait) {
        const auto world = system.read({}, &failure);
        if (world && world->windows.size() == count)
            return true;
        poll(nullptr, 0, 500);
    }
    return false;
}

void measure(WindowSystem &system, const OtherProgram &other, int count)
{
    std::vector<double> readings, floors;
    WindowFailure failure{};
    for (int round = 0; round < rounds; ++round) {
        floors.push_back(milliseconds([&other] {
            for (int trip = 0; trip < roundTrips; ++trip)
                other.wait();
        }));
        readings.push_back(milliseconds([&] { system.read({}, &failure); }));
    }
    std::printf("one reading of %d windows: %.2f ms; %d bare round trips: %.2f ms; ratio %.1f (medians of %d)\n", count,
        median(readings), roundTrips, median(floors), median(readings) / median(floors), rounds);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const auto system = windowSystem();
    OtherProgram other;
    for (const int count : {10, 100, 1000}) {
        other.openUpTo(count);
        if (!managesAll(*system, count)) {
            std::fprintf(
                stderr, "WindowReadingBench: the %d windows do not appear; it needs a window manager\n", count);
            return 1;
        }
        measure(*system, other, count);
    }
    return 0;
}
