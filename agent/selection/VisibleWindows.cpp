#include "agent/selection/VisibleWindows.h"

#include <array>
#include <tuple>

namespace {

using Rects = std::vector<QRect>;

constexpr qint64 pixelsThatAreEnough = 4096;
constexpr std::size_t digits = 9;

qint64 areaOf(const QRect &rect)
{
    return qint64(rect.width()) * rect.height();
}

bool overlap(const QRect &one, const QRect &other)
{
    return one.left() <= other.right() && other.left() <= one.right() && one.top() <= other.bottom()
        && other.top() <= one.bottom();
}

/// What a rectangle is without another one that overlaps it: above, below, left and right of that; some may be empty.
std::array<QRect, 4> piecesAround(const QRect &hole, const QRect &rect)
{
    const QRect inside = hole & rect;
    return {
        QRect(rect.topLeft(), QPoint(rect.right(), inside.top() - 1)),
        QRect(QPoint(rect.left(), inside.bottom() + 1), rect.bottomRight()),
        QRect(QPoint(rect.left(), inside.top()), QPoint(inside.left() - 1, inside.bottom())),
        QRect(QPoint(inside.right() + 1, inside.top()), QPoint(rect.right(), inside.bottom())),
    };
}

/// Counts the pixels of a rectangle that no other one hides. Stops once there are enough: most windows show plainly.
qint64 uncoveredPixels(const QRect &rect, Rects::const_iterator covering, Rects::const_iterator end, qint64 enough)
{
    covering = std::find_if(covering, end, [&rect](const QRect &other) { return overlap(rect, other); });
    if (covering == end)
        return areaOf(rect);
    qint64 pixels = 0;
    for (const QRect &piece : piecesAround(*covering, rect)) {
        if (pixels < enough && !piece.isEmpty())
            pixels += uncoveredPixels(piece, covering + 1, end, enough - pixels);
    }
    return pixels;
}

bool showsEnough(const QRect &rect, const Rects &above)
{
    Rects covering;
    std::copy_if(above.begin(), above.end(), std::back_inserter(covering),
        [&rect](const QRect &other) { return overlap(rect, other); });
    const qint64 enough = std::min(pixelsThatAreEnough, (areaOf(rect) + 3) / 4);
    return uncoveredPixels(rect, covering.begin(), covering.end(), enough) >= enough;
}

bool isHigher(const WindowDescription *one, const WindowDescription *other)
{
    return one->windowRect.top() < other->windowRect.top();
}

bool isFurtherLeft(const WindowDescription *one, const WindowDescription *other)
{
    const auto place = [](const WindowDescription *window) {
        return std::tuple(window->windowRect.left(), window->windowRect.top(), window->windowOrder);
    };
    return place(one) < place(other);
}

/// The end of the row that begins with a window: what begins above its middle stands beside it to the eye.
WindowList::iterator rowEnd(WindowList::iterator begin, WindowList::iterator end)
{
    const int middle = (*begin)->windowRect.center().y();
    return std::find_if(
        begin, end, [middle](const WindowDescription *window) { return window->windowRect.top() > middle; });
}

} // namespace

WindowList visibleWindows(const WindowWorld &world)
{
    WindowList visible;
    Rects above;
    for (const WindowDescription &window : world.windows) {
        if (!window.covers())
            continue;
        if (window.isCandidate() && showsEnough(window.windowRect, above))
            visible.push_back(&window);
        above.push_back(window.windowRect);
    }
    return visible;
}

WindowList labelledWindows(const WindowWorld &world)
{
    WindowList windows = visibleWindows(world);
    std::stable_sort(windows.begin(), windows.end(), isHigher);
    for (auto row = windows.begin(); row != windows.end();) {
        const auto end = rowEnd(row, windows.end());
        std::sort(row, end, isFurtherLeft);
        row = end;
    }
    windows.resize(std::min(windows.size(), digits));
    return windows;
}

bool isCoveredInTheMiddle(const WindowWorld &world, quint32 windowID)
{
    const WindowDescription *window = world.window(windowID);
    if (!window || !window->covers())
        return false;
    const QPoint middle = window->windowRect.center();
    for (const WindowDescription &other : world.windows) {
        if (&other == window)
            return false;
        if (other.covers() && other.windowRect.contains(middle))
            return true;
    }
    return false;
}
