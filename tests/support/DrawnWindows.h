#pragma once

#include "agent/windows/WindowWorld.h"

#include <QStringList>

/// Worlds of windows whose IDs are the letters they are drawn with. The first one is on top and the last one at the
/// bottom, in the order of the alphabet.
namespace DrawnWindows {

constexpr int cell = 100; ///< pixels that a sign of a picture stands for, both ways

inline WindowDescription window(char letter, const QRect &rect)
{
    WindowDescription described;
    described.windowID = quint32(letter);
    described.windowName = QLatin1Char(letter);
    described.windowRect = rect;
    return described;
}

/// Windows from top to bottom; the first one is active.
inline WindowWorld placed(
    QList<WindowDescription> windows, const QList<Monitor> &monitors = {{QRect(0, 0, 2000, 1000)}})
{
    for (qsizetype i = 0; i < windows.size(); ++i)
        windows[i].windowOrder = int(i);
    return {windows, monitors, windows.isEmpty() ? 0 : windows.first().windowID};
}

/// A window for each capital letter, as large as the rectangle around all of its signs.
inline WindowWorld drawn(const QStringList &picture)
{
    QList<WindowDescription> windows;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        QRect rect;
        for (qsizetype y = 0; y < picture.size(); ++y) {
            for (qsizetype x = 0; x < picture.at(y).size(); ++x) {
                if (picture.at(y).at(x) == QLatin1Char(letter))
                    rect |= QRect(int(x) * cell, int(y) * cell, cell, cell);
            }
        }
        if (!rect.isEmpty())
            windows += window(letter, rect);
    }
    return placed(windows);
}

inline WindowDescription &windowOf(WindowWorld &world, char letter)
{
    const auto found = std::find_if(world.windows.begin(), world.windows.end(),
        [letter](const WindowDescription &window) { return window.windowID == quint32(letter); });
    return *found;
}

inline void remove(WindowWorld &world, char letter)
{
    world.windows.removeIf([letter](const WindowDescription &window) { return window.windowID == quint32(letter); });
}

} // namespace DrawnWindows
