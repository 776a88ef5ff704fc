#pragma once

#include "agent/windows/WindowChoice.h"
#include "agent/windows/WindowWorld.h"
#include "agent/windows/x11/WindowAtoms.h"
#include "agent/windows/x11/WindowFacts.h"

// What follows from what a window says: whether it can be selected, and where it is seen.

/// By what all windows are judged.
struct WindowSurroundings
{
    WindowAtoms atoms;
    WindowChoice choice;
    std::optional<quint32> currentDesktop;
    QList<Monitor> monitors;
};

/// Whether the margins do not tell where the window is seen.
bool needsHolder(const WindowFacts &facts, const WindowAtoms &atoms);

/// Its place in the stack is left to the caller.
WindowDescription describe(const WindowFacts &facts, const WindowSurroundings &surroundings);
