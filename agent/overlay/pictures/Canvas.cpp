#include "agent/overlay/pictures/Canvas.h"

#include "agent/overlay/OverlayLengths.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double cornerRadius = 6;
constexpr double pi = std::numbers::pi;
constexpr int opaque = 255;

double roundOrNot(bool isRound, double radius)
{
    return isRound ? radius : 0;
}

/// A path along the inside of the line around a box.
void addBox(cairo_t *cairo, const QRectF &box, double radius, RoundCorners corners)
{
    const double upper = roundOrNot(corners != RoundCorners::Lower, radius);
    const double lower = roundOrNot(corners != RoundCorners::Upper, radius);
    cairo_new_sub_path(cairo);
    cairo_arc(cairo, box.right() - upper, box.top() + upper, upper, -pi / 2, 0);
    cairo_arc(cairo, box.right() - lower, box.bottom() - lower, lower, 0, pi / 2);
    cairo_arc(cairo, box.left() + lower, box.bottom() - lower, lower, pi / 2, pi);
    cairo_arc(cairo, box.left() + upper, box.top() + upper, upper, pi, 3 * pi / 2);
    cairo_close_path(cairo);
}

quint32 multiplied(quint32 part, quint32 alpha)
{
    return (part * alpha + opaque / 2) / opaque;
}

/// As cairo wants its pixels.
quint32 withAlphaMultiplied(quint32 pixel)
{
    const quint32 alpha = pixel >> 24;
    return alpha << 24 | multiplied(pixel >> 16 & 0xff, alpha) << 16 | multiplied(pixel >> 8 & 0xff, alpha) << 8
        | multiplied(pixel & 0xff, alpha);
}

quint32 divided(quint32 part, quint32 alpha)
{
    return std::min<quint32>(opaque, (part * opaque + alpha / 2) / alpha);
}

/// Belongs to the box, with its full colour, or not at all.
quint32 decided(quint32 multiplied)
{
    const quint32 alpha = multiplied >> 24;
    if (alpha <= opaque / 2)
        return 0;
    return 0xff000000 | divided(multiplied >> 16 & 0xff, alpha) << 16 | divided(multiplied >> 8 & 0xff, alpha) << 8
        | divided(multiplied & 0xff, alpha);
}

/// Null for an icon that has no pixels.
CairoSurface surfaceOf(const OverlayPicture &icon)
{
    if (icon.isEmpty())
        return nullptr;
    CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, icon.size.width(), icon.size.height()));
    unsigned char *const bytes = cairo_image_surface_get_data(surface.get());
    if (!bytes)
        return nullptr;
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int y = 0; y < icon.size.height(); ++y) {
        const auto row = icon.pixels.cbegin() + std::ptrdiff_t(y) * icon.size.width();
        std::transform(row, row + icon.size.width(), reinterpret_cast<quint32 *>(bytes + std::ptrdiff_t(y) * stride),
            withAlphaMultiplied);
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

} // namespace

Canvas::Canvas(const OverlayInk &ink, QSize size, RoundCorners corners)
    : ink_(ink), size_(size), surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width(), size.height())),
      cairo_(cairo_create(surface_.get()))
{
    drawBox(corners);
}

void Canvas::useColor(quint32 color)
{
    const auto part = [color](int shift) { return double(color >> shift & 0xff) / opaque; };
    cairo_set_source_rgb(cairo_.get(), part(16), part(8), part(0));
}

void Canvas::drawBox(RoundCorners corners)
{
    const double line = scaledLength(1, ink_.scale), radius = cornerRadius * ink_.scale;
    const QRectF box(QPointF(0, 0), size_);
    addBox(cairo_.get(), box, radius, corners);
    useColor(ink_.text);
    cairo_fill(cairo_.get());
    addBox(cairo_.get(), box.adjusted(line, line, -line, -line), std::max(0.0, radius - line), corners);
    useColor(ink_.ground);
    cairo_fill(cairo_.get());
}

Layout Canvas::layoutOf(const QString &text, double height, bool isBold) const
{
    Layout layout(pango_cairo_create_layout(cairo_.get()));
    const std::unique_ptr<PangoFontDescription, Releasing<PangoFontDescription, pango_font_description_free>> font(
        pango_font_description_new());
    pango_font_description_set_family_static(font.get(), "Sans");
    pango_font_description_set_weight(font.get(), isBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_absolute_size(font.get(), height * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), font.get());
    pango_layout_set_single_paragraph_mode(layout.get(), true);
    const QByteArray bytes = text.toUtf8();
    pango_layout_set_text(layout.get(), bytes.constData(), int(bytes.size()));
    return layout;
}

void Canvas::drawText(PangoLayout *layout, QPointF corner)
{
    useColor(ink_.text);
    cairo_move_to(cairo_.get(), corner.x(), corner.y());
    pango_cairo_show_layout(cairo_.get(), layout);
}

void Canvas::drawIcon(const OverlayPicture &icon, const QRectF &place)
{
    const CairoSurface surface = surfaceOf(icon);
    if (!surface) {
        drawSign(place);
        return;
    }
    const double factor = std::min(place.width() / icon.size.width(), place.height() / icon.size.height());
    const QPointF corner = place.center() - QPointF(icon.size.width(), icon.size.height()) * factor / 2;
    cairo_save(cairo_.get());
    cairo_translate(cairo_.get(), corner.x(), corner.y());
    cairo_scale(cairo_.get(), factor, factor);
    cairo_set_source_surface(cairo_.get(), surface.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(cairo_.get()), CAIRO_FILTER_GOOD);
    cairo_paint(cairo_.get());
    cairo_restore(cairo_.get());
}

/// A window with its title bar.
void Canvas::drawSign(const QRectF &place)
{
    const double line = std::max(1.0, std::round(place.height() / 12));
    const QRectF window = place.adjusted(0, place.height() / 8, 0, -place.height() / 8);
    useColor(ink_.text);
    addBox(cairo_.get(), window, 2 * line, RoundCorners::All);
    cairo_fill(cairo_.get());
    useColor(ink_.ground);
    addBox(cairo_.get(), window.adjusted(line, 3 * line, -line, -line), line, RoundCorners::Lower);
    cairo_fill(cairo_.get());
}

OverlayPicture Canvas::picture() const
{
    cairo_surface_flush(surface_.get());
    const unsigned char *const bytes = cairo_image_surface_get_data(surface_.get());
    if (!bytes || cairo_status(cairo_.get()) != CAIRO_STATUS_SUCCESS)
        return {};
    OverlayPicture picture{size_, {}};
    picture.pixels.reserve(size_t(size_.width()) * size_t(size_.height()));
    const int stride = cairo_image_surface_get_stride(surface_.get());
    for (int y = 0; y < size_.height(); ++y) {
        const auto *row = reinterpret_cast<const quint32 *>(bytes + std::ptrdiff_t(y) * stride);
        std::transform(row, row + size_.width(), std::back_inserter(picture.pixels), decided);
    }
    return picture;
}
