#pragma once

#include <QColor>
#include <QRect>
#include <algorithm>

/// A frame as its pixels are to be, told by how far each is from the rectangle's edge.
struct ExpectedFrame
{
    QRect rect;
    QRgb ground = 0, color = 0, contrast = 0;
    int line = 1, band = 6;
    double opacity = 1, tint = 0;

    QRgb operator()(QPoint place) const
    {
        const int depth = std::min(
            {place.x() - rect.left(), rect.right() - place.x(), place.y() - rect.top(), rect.bottom() - place.y()});
        if (depth < 0)
            return ground;
        if (depth >= 2 * line + band)
            return mixed(color, tint);
        // Where nothing is left inside, there is no line before it.
        const bool hasInside = std::min(rect.width(), rect.height()) > 2 * (2 * line + band);
        const bool isLine = depth < line || (hasInside && depth >= line + band);
        return mixed(isLine ? contrast : color, opacity);
    }

private:
    QRgb mixed(QRgb above, double share) const
    {
        const auto part = [share](int over, int under) { return qRound(over * share + under * (1 - share)); };
        return qRgb(
            part(qRed(above), qRed(ground)), part(qGreen(above), qGreen(ground)), part(qBlue(above), qBlue(ground)));
    }
};
