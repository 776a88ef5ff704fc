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

qint64 overlapOf(const QRect &one, const QRect &other)
{
    const int width = std::min(one.right(), other.right()) - std::max(one.left(), other.left()) + 1;
    const int height = std::min(one.bottom(), other.bottom()) - std::max(one.top(), other.top()) + 1;
    return width > 0 && height > 0 ? qint64(width) * height : 0;
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

/// The one that hides the most, which leaves the least to be looked at in parts; null where none hides anything.
const QRect *largestCover(const QRect &rect, const Rects &covering)
{
    const QRect *largest = nullptr;
    qint64 most = 0;
    for (const QRect &other : covering) {
        const qint64 overlap = overlapOf(rect, other);
        if (overlap <= most)
            continue;
        most = overlap;
        largest = &other;
        if (most == areaOf(rect))
            break;
    }
    return largest;
}

/// Counts the pixels of a rectangle that no other one hides. Stops once there are enough: most windows show plainly.
qint64 uncoveredPixels(const QRect &rect, const Rects &covering, qint64 enough)
{
    const QRect *cover = largestCover(rect, covering);
    if (!cover)
        return areaOf(rect);
    qint64 pixels = 0;
    for (const QRect &piece : piecesAround(*cover, rect)) {
        if (pixels < enough && !piece.isEmpty())
            pixels += uncoveredPixels(piece, covering, enough - pixels);
    }
    return pixels;
}

qint64 pixelsThatCount(const QRect &rect)
{
    return std::min(pixelsThatAreEnough, (areaOf(rect) + 3) / 4);
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

/// Whether one above a window hides any of a part of it.
bool isHidden(const WindowWorld &world, quint32 windowID, const QRect &part)
{
    const WindowDescription *window = world.window(windowID);
    if (!window || !window->covers())
        return false;
    for (const WindowDescription &other : world.windows) {
        if (&other == window)
            return false;
        if (other.covers() && other.windowRect.intersects(part))
            return true;
    }
    return false;
}

} // namespace

WindowList visibleWindows(const WindowWorld &world)
{
    WindowList visible;
    Rects covering;
    for (const WindowDescription &window : world.windows) {
        if (!window.covers())
            continue;
        const QRect &rect = window.windowRect;
        const qint64 enough = pixelsThatCount(rect);
        const qint64 pixels = uncoveredPixels(rect, covering, enough);
        if (window.isCandidate() && pixels >= enough)
            visible.push_back(&window);
        // What is hidden itself hides nothing that is not hidden already.
        if (pixels > 0)
            covering.push_back(rect);
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
    const QPoint middle = world.window(windowID) ? world.window(windowID)->windowRect.center() : QPoint();
    return isHidden(world, windowID, QRect(middle, QSize(1, 1)));
}

bool isOverlapped(const WindowWorld &world, quint32 windowID)
{
    return isHidden(world, windowID, world.window(windowID) ? world.window(windowID)->windowRect : QRect());
}
