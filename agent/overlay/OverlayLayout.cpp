#include "agent/overlay/OverlayLayout.h"

#include <algorithm>

namespace {

constexpr double bandWidth = 6, lineWidth = 1;

int scaled(double length, double scale)
{
    return std::max(1, qRound(length * scale));
}

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

} // namespace

FrameParts framePartsIn(const QRect &rect, double scale)
{
    const int line = scaled(lineWidth, scale), band = scaled(bandWidth, scale);
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
