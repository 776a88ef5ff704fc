#pragma once

#include "agent/overlay/OverlayPictures.h"

#include <QRectF>
#include <memory>
#include <pango/pangocairo.h>

template <typename Type, auto release>
struct Releasing
{
    void operator()(Type *object) const { release(object); }
};

using CairoSurface = std::unique_ptr<cairo_surface_t, Releasing<cairo_surface_t, cairo_surface_destroy>>;
using Cairo = std::unique_ptr<cairo_t, Releasing<cairo_t, cairo_destroy>>;
using Layout = std::unique_ptr<PangoLayout, Releasing<void, g_object_unref>>;

/// A box that is drawn on, of the ground's colour with a line around it.
class Canvas
{
public:
    Canvas(const OverlayInk &ink, QSize size, RoundCorners corners = RoundCorners::All);

    /// Of the font for all texts; `height` is that of the letters' square, in pixels.
    Layout layoutOf(const QString &text, double height, bool isBold) const;
    /// With its upper left corner there.
    void drawText(PangoLayout *layout, QPointF corner);
    /// An icon, or a sign for a window where it is empty.
    void drawIcon(const OverlayPicture &icon, const QRectF &place);

    /// What has been drawn. Empty when something failed.
    OverlayPicture picture() const;

private:
    void drawBox(RoundCorners corners);
    void drawSign(const QRectF &place);
    void useColor(quint32 color);

    OverlayInk ink_;
    QSize size_;
    CairoSurface surface_;
    Cairo cairo_;
};
