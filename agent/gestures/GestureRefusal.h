#pragma once

#include "agent/windows/WindowFailure.h"

/// Why nothing came of a gesture, or not what was meant.
struct GestureRefusal
{
    enum class Kind : quint8 {
        NoWindow, ///< that can be selected
        Unreadable, ///< the desktop does not tell its windows
        ScreenTaken, ///< another program has keyboard and mouse, as one that locks the screen
        KeyboardKept, ///< by another program; the combinations work
        NotActivated, ///< the window that was accepted
        Closed ///< that window, before it had the focus
    };

    Kind kind = Kind::NoWindow;
    QString title = {}; ///< the window's, which may be empty
    WindowFailure failure = {}; ///< of what cannot be read
};

/// A sentence without its full stop.
QString sentence(const GestureRefusal &refusal);
