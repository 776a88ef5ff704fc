#include "agent/selection/Neighbours.h"

#include <iterator>
#include <tuple>

namespace {

template <typename Comparison>
WindowList windowsOnSide(const WindowList &visible, Axis axis, const Standpoint &from, Comparison comparison)
{
    const OrderKey selected = orderKey(from.selected, axis, from);
    WindowList found;
    std::copy_if(visible.begin(), visible.end(), std::back_inserter(found), [&](const WindowDescription *window) {
        return comparison(orderKey(window->windowRect, axis, from), selected);
    });
    return found;
}

/// A window's place among those underneath another one; a smaller one is reached sooner.
auto depthBelow(const WindowDescription &top, const QRect &topRect, const WindowDescription &window)
{
    const bool isAway = !window.covers();
    const bool isApart = !window.windowRect.intersects(topRect);
    const bool isHigher = window.windowOrder < top.windowOrder;
    return std::tuple(&window != &top, isAway, !isAway && isApart, isHigher, window.windowOrder, window.windowID);
}

} // namespace

WindowList windowsToLeft(const WindowList &visible, const Standpoint &from)
{
    return windowsOnSide(visible, Axis::Horizontal, from, std::less());
}

WindowList windowsToRight(const WindowList &visible, const Standpoint &from)
{
    return windowsOnSide(visible, Axis::Horizontal, from, std::greater());
}

WindowList windowsAbove(const WindowList &visible, const Standpoint &from)
{
    return windowsOnSide(visible, Axis::Vertical, from, std::less());
}

WindowList windowsBelow(const WindowList &visible, const Standpoint &from)
{
    return windowsOnSide(visible, Axis::Vertical, from, std::greater());
}

WindowList windowsUnderneath(const WindowWorld &world, quint32 windowID)
{
    const WindowDescription *top = world.window(windowID);
    if (!top)
        return {};
    WindowList found;
    for (const WindowDescription &window : world.windows) {
        if (window.isCandidate() || &window == top)
            found.push_back(&window);
    }
    const QRect topRect = placeOf(*top, world);
    std::sort(found.begin(), found.end(), [&](const WindowDescription *one, const WindowDescription *other) {
        return depthBelow(*top, topRect, *one) < depthBelow(*top, topRect, *other);
    });
    return found;
}

QRect placeOf(const WindowDescription &window, const WindowWorld &world)
{
    if (!window.windowRect.isEmpty())
        return window.windowRect;
    const QRect screen = world.monitors.isEmpty() ? QRect() : world.monitors.first().rect;
    return {screen.center(), QSize(1, 1)};
}
