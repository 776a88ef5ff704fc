#pragma once

#include "agent/selection/SelectionRules.h"

#include <QRect>
#include <algorithm>
#include <compare>

/// On which a direction lies.
enum class Axis : quint8 { Horizontal, Vertical };

inline Axis axisOf(Movement direction)
{
    return direction == Movement::Left || direction == Movement::Right ? Axis::Horizontal : Axis::Vertical;
}

/// Whether coordinates grow that way.
inline bool isForward(Movement direction)
{
    return direction == Movement::Right || direction == Movement::Down;
}

/// What takes a movement back; Under has no such.
Movement oppositeOf(Movement direction);

/// What a window takes up on an axis: from its first pixel up to `end`, which is none of it.
struct Span
{
    int begin = 0;
    int end = 0;

    bool operator==(const Span &) const = default;

    int doubledCenter() const { return begin + end; }
    bool overlaps(const Span &other) const { return begin < other.end && other.begin < end; }
    /// The pixels between the two; 0 for those that touch or overlap.
    int gapTo(const Span &other) const { return std::max({0, other.begin - end, begin - other.end}); }
};

Span spanAlong(const QRect &window, Axis axis);
Span spanAcross(const QRect &window, Axis axis);

/// A window's place in a sort order: a greater one lies further right or down.
struct OrderKey
{
    int side = 0;
    int place = 0;

    auto operator<=>(const OrderKey &) const = default;

    OrderKey reversed() const { return {-side, -place}; }
};

/// From where windows are looked at, and how.
struct Standpoint
{
    QRect selected;
    QRect first; ///< the window that was selected first
    SortOrder order = SortOrder::FirstSelected;
    Movement movement = Movement::Right; ///< the edge that leads is on this side
};

OrderKey orderKey(const QRect &window, Axis axis, const Standpoint &from);
