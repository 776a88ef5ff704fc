#include "agent/overlay/OverlayLengths.h"
#include "agent/overlay/pictures/Canvas.h"

#include <algorithm>

namespace {

constexpr double titleHeight = 14, digitShare = 0.6, iconShare = 0.75;
constexpr double stripIcon = 18, stripMargin = 10, stripGap = 8;
constexpr int longestTitle = 1024;
constexpr int longestLine = 16384; // pixels; no monitor is wider

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator;
}

/// One line, short enough to be laid out at once.
QString lineOf(const QString &title)
{
    QString line = title.left(longestTitle);
    // Half of a character may have been left over.
    if (!line.isEmpty() && line.back().isHighSurrogate())
        line.chop(1);
    std::replace_if(line.begin(), line.end(), isControl, u' ');
    return line.trimmed();
}

QSize sizeOf(PangoLayout *layout)
{
    int width = 0, height = 0;
    pango_layout_get_pixel_size(layout, &width, &height);
    return {width, height};
}

void elideTo(PangoLayout *layout, int width)
{
    if (sizeOf(layout).width() <= width)
        return;
    pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
    pango_layout_set_width(layout, width * PANGO_SCALE);
}

class Pictures : public OverlayPictures
{
public:
    OverlayPicture strip(const OverlayInk &ink, const OverlayPicture &icon, const QString &title, int longest,
        RoundCorners corners) const override;
    OverlayPicture digit(const OverlayInk &ink, int digit, int side) const override;
    OverlayPicture icon(const OverlayInk &ink, const OverlayPicture &icon, int side) const override;
};

OverlayPicture Pictures::strip(
    const OverlayInk &ink, const OverlayPicture &icon, const QString &title, int longest, RoundCorners corners) const
{
    const int height = stripHeight(ink.scale), margin = qRound(stripMargin * ink.scale);
    const int iconSide = qRound(stripIcon * ink.scale), gap = qRound(stripGap * ink.scale);
    const int start = margin + iconSide + gap;
    const Layout text = Canvas(ink, {1, 1}).layoutOf(lineOf(title), titleHeight * ink.scale, false);
    elideTo(text.get(), std::max(1, std::min(longest, longestLine) - start - margin));
    const QSize textSize = sizeOf(text.get());
    const int width = textSize.width() > 0 ? start + textSize.width() + margin : 2 * margin + iconSide;
    Canvas canvas(ink, {width, height}, corners);
    canvas.drawIcon(icon, QRectF(margin, (height - iconSide) / 2, iconSide, iconSide));
    canvas.drawText(text.get(), QPointF(start, (height - textSize.height()) / 2));
    return canvas.picture();
}

OverlayPicture Pictures::digit(const OverlayInk &ink, int digit, int side) const
{
    Canvas canvas(ink, {side, side});
    const Layout text = canvas.layoutOf(QString::number(digit), side * digitShare, true);
    PangoRectangle shape{};
    pango_layout_get_pixel_extents(text.get(), &shape, nullptr);
    // In the middle goes what is seen of it, not its line.
    canvas.drawText(text.get(), QPointF((side - shape.width) / 2 - shape.x, (side - shape.height) / 2 - shape.y));
    return canvas.picture();
}

OverlayPicture Pictures::icon(const OverlayInk &ink, const OverlayPicture &icon, int side) const
{
    Canvas canvas(ink, {side, side});
    const double inside = qRound(side * iconShare), margin = qRound((side - inside) / 2);
    canvas.drawIcon(icon, QRectF(margin, margin, inside, inside));
    return canvas.picture();
}

} // namespace

extern "C" Q_DECL_EXPORT const OverlayPictures *lumarooOverlayPictures()
{
    static const Pictures pictures;
    return &pictures;
}
