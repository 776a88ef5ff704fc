#include "agent/overlay/x11/FrameWindow.h"

FrameWindow::FrameWindow(const MarkDisplay &display)
    : display_(display), frame_(display), tint_(display), lines_(xcb_generate_id(display.server()))
{
    xcb_create_window(display.server(), display.depth(), lines_, frame_.id(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, display.visual(), 0, nullptr);
    cutWindow(display, lines_, {});
    xcb_map_window(display.server(), lines_);
}

void FrameWindow::setColors(const OverlayColors &colors)
{
    const quint32 contrast = display_.pixel(colors.contrast);
    xcb_change_window_attributes(display_.server(), lines_, XCB_CW_BACK_PIXEL, &contrast);
    xcb_clear_area(display_.server(), false, lines_, 0, 0, 0, 0);
    frame_.setColor(colors.fill);
    frame_.setOpacity(colors.frameOpacity);
    tint_.setColor(colors.fill);
    tint_.setOpacity(colors.tintOpacity);
    hasTint_ = colors.tintOpacity > 0;
}

void FrameWindow::show(const QRect &rect, double scale, bool isTinted, Resizing resizing)
{
    const FrameParts parts = framePartsIn(rect, scale);
    // The lines lie within the frame, which is not yet on screen when they get their place there.
    if (resizing == Resizing::OffScreen && rect.size() != frame_.rect().size())
        frame_.hide();
    resizeLines(rect, parts.lines);
    frame_.show(rect, parts.frame, resizing);
    if (isTinted && hasTint_ && !parts.inside.isEmpty())
        tint_.show(parts.inside, {parts.inside}, resizing);
    else
        tint_.hide();
}

void FrameWindow::resizeLines(const QRect &rect, const QList<QRect> &lines)
{
    const QList<QRect> region = regionFrom(rect.topLeft(), lines);
    if (region == lineRegion_ && rect.size() == frame_.rect().size())
        return;
    lineRegion_ = region;
    const quint32 size[]{quint32(rect.width()), quint32(rect.height())};
    xcb_configure_window(display_.server(), lines_, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
    cutWindow(display_, lines_, region);
}

void FrameWindow::hide()
{
    frame_.hide();
    tint_.hide();
}
