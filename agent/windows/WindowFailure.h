#pragma once

#include <QString>

/// Why the desktop tells no windows.
enum class WindowFailure : quint8 {
    NoServer, ///< of X
    ServerHasGone,
    WaylandSession,
    NoManager, ///< that tells windows
    SilentManager ///< it runs, but tells none
};

/// A clause for scripts, without its full stop.
QString clause(WindowFailure failure);
