#pragma once

#include "KeyPress.h"
#include "bench/Median.h"
#include "bench/RunningProgram.h"
#include "bench/SeenDisplay.h"

#include <QStandardPaths>
#include <cstdio>
#include <functional>
#include <linux/input-event-codes.h>

// Other programs that let their users choose a window: from the key press, or from their start where a key does that,
// until the first of their list is on screen.

inline constexpr quint32 switcherColor = 0x38c0a8;

/// Whether that color is anywhere in the screen's middle row or column, where the lists stand.
inline bool isAcrossMiddle(const SeenDisplay &display, quint32 color)
{
    for (int x = 0; x < screenWidth; ++x) {
        if (display.pixel(x, screenHeight / 2) == color)
            return true;
    }
    for (int y = 0; y < screenHeight; ++y) {
        if (display.pixel(screenWidth / 2, y) == color)
            return true;
    }
    return false;
}

inline bool waitAcrossMiddle(const SeenDisplay &display, bool isThere)
{
    const Clock::time_point end = Clock::now() + longestWait;
    while (isAcrossMiddle(display, switcherColor) != isThere) {
        if (Clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::microseconds(20));
    }
    return true;
}

/// In microseconds; -1 where it does not come.
inline double timeUntilAcrossMiddle(const SeenDisplay &display, Clock::time_point start)
{
    const bool isSeen = waitAcrossMiddle(display, true);
    return isSeen ? std::chrono::duration<double, std::micro>(Clock::now() - start).count() : -1;
}

/// It runs all the time and holds its key, as the agent does.
class Alttab
{
public:
    explicit Alttab(const SeenDisplay &display) : display_(display) { }

    double press()
    {
        keyDown(KEY_LEFTMETA);
        const Clock::time_point start = Clock::now();
        keyDown(KEY_TAB);
        const double time = timeUntilAcrossMiddle(display_, start);
        keyUp(KEY_TAB);
        keyUp(KEY_LEFTMETA);
        return time;
    }

private:
    const SeenDisplay &display_;
    const RunningProgram program_{QStringLiteral("alttab"),
        {"-w", "1", "-mk", "Super_L", "-kk", "Tab", "-bg",
            QStringLiteral("#%1").arg(switcherColor, 6, 16, QChar(u'0'))}};
};

/// A key of the window manager starts it anew each time.
class Rofi
{
public:
    explicit Rofi(const SeenDisplay &display) : display_(display) { }

    double press()
    {
        const Clock::time_point start = Clock::now();
        const RunningProgram program(QStringLiteral("rofi"),
            {"-show", "window", "-theme-str",
                QStringLiteral("window { background-color: #%1; }").arg(switcherColor, 6, 16, QChar(u'0'))});
        return timeUntilAcrossMiddle(display_, start);
    }

private:
    const SeenDisplay &display_;
};

/// `activateFirst` has the first window be the active one, false where it does not become that.
template <typename Switcher>
void compareWith(
    const char *name, double goal, const SeenDisplay &display, double ours, const std::function<bool()> &activateFirst)
{
    if (QStandardPaths::findExecutable(QString::fromLatin1(name)).isEmpty()) {
        std::printf("              %s is not installed\n", name);
        return;
    }
    constexpr int presses = 15, warmUpPresses = 3;
    Switcher switcher(display);
    std::vector<double> times;
    for (int press = -warmUpPresses; press < presses; ++press) {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        const double time = activateFirst() ? switcher.press() : -1;
        const bool isGone = waitAcrossMiddle(display, false);
        if (press < 0)
            continue;
        if (time < 0 || !isGone) {
            std::printf("              %s did not come up\n", name);
            return;
        }
        times.push_back(time);
    }
    std::printf("              %s: its list is seen after %.2f ms: %.1f times ours (goal: at least %.0f)\n", name,
        median(times) / 1000, median(times) / ours, goal);
}

/// Beside the time of our own first press, in microseconds.
inline void compareWithOthers(const SeenDisplay &display, double ours, const std::function<bool()> &activateFirst)
{
    compareWith<Alttab>("alttab", 5, display, ours, activateFirst);
    compareWith<Rofi>("rofi", 6, display, ours, activateFirst);
    std::fflush(stdout);
}
