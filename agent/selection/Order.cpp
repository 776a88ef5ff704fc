#include "agent/selection/Order.h"

namespace {

/// Those past the window selected first by the edge that is nearest to it, and the others by theirs: each side is left
/// in the order in which it was entered.
OrderKey keyFromFirst(const Span &window, const Span &first)
{
    if (window == first)
        return {};
    const int centers = window.doubledCenter() - first.doubledCenter();
    const bool isPast = centers > 0 || (centers == 0 && window.begin > first.begin);
    return isPast ? OrderKey{1, window.begin} : OrderKey{-1, window.end};
}

Span horizontalSpan(const QRect &window)
{
    return {window.x(), window.x() + window.width()};
}

Span verticalSpan(const QRect &window)
{
    return {window.y(), window.y() + window.height()};
}

} // namespace

Movement oppositeOf(Movement direction)
{
    switch (direction) {
    case Movement::Left:
        return Movement::Right;
    case Movement::Right:
        return Movement::Left;
    case Movement::Up:
        return Movement::Down;
    case Movement::Down:
        return Movement::Up;
    case Movement::Under:
        break;
    }
    return Movement::Under;
}

Span spanAlong(const QRect &window, Axis axis)
{
    return axis == Axis::Horizontal ? horizontalSpan(window) : verticalSpan(window);
}

Span spanAcross(const QRect &window, Axis axis)
{
    return axis == Axis::Horizontal ? verticalSpan(window) : horizontalSpan(window);
}

OrderKey orderKey(const QRect &window, Axis axis, const Standpoint &from)
{
    const Span span = spanAlong(window, axis);
    switch (from.order) {
    case SortOrder::FirstSelected:
        return keyFromFirst(span, spanAlong(from.first, axis));
    case SortOrder::NearEdge:
        return {0, span.begin};
    case SortOrder::FarEdge:
        return {0, span.end};
    case SortOrder::Center:
        return {0, span.doubledCenter()};
    case SortOrder::LeadingEdge:
        return {0, isForward(from.movement) ? span.end : span.begin};
    }
    return {};
}
