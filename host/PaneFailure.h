#pragma once

#include <QString>

/// Why a pane cannot be shown.
enum class PaneFailure {
    None,
    NotInstalled, ///< no installed pane has that identifier
    Missing, ///< there is no such bundle
    Damaged, ///< no Info dictionary, no code, or code that does not load
    WrongArchitecture, ///< its code is for another kind of machine
    NewerPlatform, ///< it needs newer platform libraries than these
    NoPrincipalClass, ///< its code offers no pane
    InitialiserFailed,
    NoView, ///< its interface file does not load
};

/// What the error page tells.
struct PaneFailureReport
{
    PaneFailure failure = PaneFailure::None;
    QString detail; ///< which file, which machine, what the loader said; may be empty

    explicit operator bool() const { return failure != PaneFailure::None; }
};
