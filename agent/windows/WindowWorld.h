#pragma once

#include "agent/windows/WindowDescription.h"

#include <QList>
#include <algorithm>

/// A part of the desktop that one screen shows.
struct Monitor
{
    QRect rect;
    double scale = 1; ///< 1 for 96 dots per inch
    double refreshRate = 60; ///< in hertz

    bool operator==(const Monitor &) const = default;
};

/// One reading of all windows and monitors; plain data, so that what is decided from it needs no display.
struct WindowWorld
{
    QList<WindowDescription> windows; ///< topmost first; also those that cannot be selected, since they cover others
    QList<Monitor> monitors; ///< at least one
    quint32 activeWindow = 0; ///< 0 for none; may be no candidate

    /// Null for a window that is not there.
    const WindowDescription *window(quint32 windowID) const
    {
        const auto found = std::find_if(windows.cbegin(), windows.cend(),
            [windowID](const WindowDescription &window) { return window.windowID == windowID; });
        return found == windows.cend() ? nullptr : &*found;
    }
};
