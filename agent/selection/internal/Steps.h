#pragma once

#include "agent/selection/Neighbours.h"
#include "agent/selection/Selection.h"

/// A movement key's press in a direction.
struct DirectionPress
{
    Standpoint from;
    Span band; ///< what the row takes up across the direction
    MovementKind kind = MovementKind::Press;
    bool wraps = false;
};

/// The window that a press leads to, of those that are visible without the selected one; null where it leads nowhere.
const WindowDescription *windowByPress(
    const WindowList &others, const DirectionPress &press, const WindowDescription &selected);
