#include "agent/overlay/OverlayLayout.h"

#include "agent/overlay/OverlayLengths.h"

#include <algorithm>

namespace {

constexpr double bandWidth = 6, lineWidth = 1;
constexpr double longestStrip = 560, leastWindowWidth = 300, leastWindowHeight = 120;
constexpr double labelSide = 36, labelMargin = 8, greatestIcon = 96, leastIcon = 24;

QRect shrunk(const QRect &rect, int by)
{
    return rect.adjusted(by, by, -by, -by);
}

/// What `width` pixels along the rectangle's edge take up.
QList<QRect> ring(const QRect &rect, int width)
{
    if (rect.isEmpty() || 2 * width >= std::min(rect.width(), rect.height()))
        return rect.isEmpty() ? QList<QRect>() : QList<QRect>{rect};
    const int height = rect.height() - 2 * width;
    return {{rect.x(), rect.y(), rect.width(), width}, {rect.x(), rect.y() + width, width, height},
        {rect.x() + rect.width() - width, rect.y() + width, width, height},
        {rect.x(), rect.y() + rect.height() - width, rect.width(), width}};
}

/// From the frame's outside to where its inner line begins.
int toInnerLine(double scale)
{
    return scaledLength(lineWidth, scale) + scaledLength(bandWidth, scale);
}

/// The window as the monitor shows it, which is where its texts are read.
QRect shownRect(const OverlayView &view)
{
    const QRect shown = view.windowRect & view.monitor.rect;
    return shown.isEmpty() ? view.windowRect : shown;
}

QRect squareAround(const QPoint &center, int side)
{
    return {center.x() - side / 2, center.y() - side / 2, side, side};
}

/// As far into the other as it takes, and as far as it goes.
QRect movedInto(QRect rect, const QRect &other)
{
    rect.moveLeft(std::max(other.left(), std::min(rect.left(), other.right() + 1 - rect.width())));
    rect.moveTop(std::max(other.top(), std::min(rect.top(), other.bottom() + 1 - rect.height())));
    return rect;
}

bool hasRoomForStrip(const QRect &window, double scale)
{
    return window.width() >= scaledLength(leastWindowWidth, scale)
        && window.height() >= scaledLength(leastWindowHeight, scale);
}

/// Leaves room for a label on each side.
StripPlace stripPlaceInside(const QRect &window, double scale)
{
    const int edge = toInnerLine(scale);
    const int sides = 2 * (edge + scaledLength(labelSide + 2 * labelMargin, scale));
    return {std::min(window.width() - sides, scaledLength(longestStrip, scale)), RoundCorners::Lower,
        window.center().x(), window.y() + edge};
}

StripPlace stripPlaceOutside(const QRect &window, const Monitor &monitor)
{
    const int height = stripHeight(monitor.scale);
    const bool isAbove = window.y() - height >= monitor.rect.y();
    return {scaledLength(longestStrip, monitor.scale), isAbove ? RoundCorners::Upper : RoundCorners::Lower,
        window.center().x(), isAbove ? window.y() - height : window.y() + window.height()};
}

QRect labelPlaceOn(const QRect &window, double scale)
{
    const int side = scaledLength(labelSide, scale);
    const int margin = toInnerLine(scale) + scaledLength(labelMargin, scale);
    const QRect atCorner(window.topLeft() + QPoint(margin, margin), QSize(side, side));
    return window.contains(atCorner) ? atCorner : squareAround(window.center(), side);
}

bool overlapsOneOf(const QList<QRect> &places, const QRect &place)
{
    return std::any_of(places.begin(), places.end(), [&place](const QRect &taken) { return taken.intersects(place); });
}

} // namespace

FrameParts framePartsIn(const QRect &rect, double scale)
{
    const int line = scaledLength(lineWidth, scale), band = scaledLength(bandWidth, scale);
    FrameParts parts{ring(rect, 2 * line + band), {}, shrunk(rect, 2 * line + band)};
    // Lines that would leave nothing of the colour are left out.
    if (shrunk(rect, line).isEmpty())
        return parts;
    parts.lines = ring(rect, line);
    const QRect innerLine = shrunk(rect, line + band);
    if (!shrunk(innerLine, line).isEmpty())
        parts.lines += ring(innerLine, line);
    return parts;
}

QRect StripPlace::rectOf(QSize strip, const QRect &monitor) const
{
    return movedInto({QPoint(middle - strip.width() / 2, top), strip}, monitor);
}

StripPlace stripPlaceOf(const OverlayView &view)
{
    const Monitor &monitor = view.monitor;
    StripPlace place;
    if (view.windowRect.isEmpty()) {
        const QRect icon = iconPlaceOf(view);
        place = {scaledLength(longestStrip, monitor.scale), RoundCorners::All, icon.center().x(),
            icon.y() + icon.height() + scaledLength(labelMargin, monitor.scale)};
    } else if (hasRoomForStrip(shownRect(view), monitor.scale)) {
        place = stripPlaceInside(shownRect(view), monitor.scale);
    } else {
        place = stripPlaceOutside(shownRect(view), monitor);
    }
    place.longest = std::min(place.longest, monitor.rect.width());
    return place;
}

QRect iconPlaceOf(const OverlayView &view)
{
    const double scale = view.monitor.scale;
    const int greatest = scaledLength(greatestIcon, scale);
    if (view.windowRect.isEmpty())
        return squareAround(view.monitor.rect.center(), greatest);
    const QRect window = shownRect(view);
    const int side = std::min(greatest, std::min(window.width(), window.height()) / 2);
    return view.isCovered && side >= scaledLength(leastIcon, scale) ? squareAround(window.center(), side) : QRect();
}

QList<QRect> labelPlacesOf(const OverlayView &view)
{
    QList<QRect> places;
    for (const OverlayLabel &label : view.labels) {
        QRect place = labelPlaceOn(label.windowRect, view.monitor.scale);
        // Windows that begin at one place stand on each other: their labels go side by side.
        while (overlapsOneOf(places, place))
            place.translate(place.width() + scaledLength(labelMargin, view.monitor.scale) / 2, 0);
        places += place;
    }
    return places;
}
