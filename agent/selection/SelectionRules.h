#pragma once

#include <QtGlobal>

/// Where a movement key leads.
enum class Movement : quint8 { Left, Right, Up, Down, Under };

/// What of two windows on an axis is compared.
enum class SortOrder : quint8 {
    FirstSelected, ///< where they lie from the window selected first
    NearEdge, ///< left or top
    FarEdge, ///< right or bottom
    Center,
    LeadingEdge ///< the edge that goes ahead in the direction of the move
};

struct SelectionRules
{
    SortOrder horizontalOrder = SortOrder::FirstSelected;
    SortOrder verticalOrder = SortOrder::FirstSelected;
    bool wrapsHorizontally = true;
    bool wrapsVertically = true;
    bool cyclesAscending = false; ///< Under goes up the stack

    bool operator==(const SelectionRules &) const = default;
};
