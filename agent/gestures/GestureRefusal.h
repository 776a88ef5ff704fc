#pragma once

#include <QString>

/// Why nothing came of a gesture, or not what was meant.
struct GestureRefusal
{
    enum class Kind : quint8 {
        NoWindow, ///< that can be selected
        Unreadable, ///< the desktop does not tell its windows
        ScreenTaken, ///< another program has keyboard and mouse, as one that locks the screen
        KeyboardKept, ///< by another program; the combinations work
        NotActivated ///< the window that was accepted
    };

    Kind kind = Kind::NoWindow;
    QString detail; ///< of what cannot be read, the reason; of a window, its title, which may be empty
};

/// A sentence without its full stop.
QString sentence(const GestureRefusal &refusal);
