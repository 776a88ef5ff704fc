#pragma once

#include "agent/overlay/OverlayColors.h"
#include "agent/overlay/OverlayLayout.h"
#include "agent/overlay/x11/MarkWindow.h"

/// The frame with its lines, and the tint inside it.
class FrameWindow
{
public:
    explicit FrameWindow(const MarkDisplay &display);

    bool isShown() const { return frame_.isShown(); }
    const QRect &rect() const { return frame_.rect(); }
    xcb_window_t lowestWindow() const { return frame_.id(); }

    void setColors(const OverlayColors &colors);
    /// A rectangle that is not empty, for a monitor's density. The tint needs a compositor.
    void show(const QRect &rect, double scale, bool isTinted, Resizing resizing);
    void hide();

private:
    void resizeLines(const QRect &rect, const QList<QRect> &lines);

    const MarkDisplay &display_;
    MarkWindow frame_, tint_;
    const xcb_window_t lines_; ///< within the frame, cut to both lines
    QList<QRect> lineRegion_;
    bool hasTint_ = false;
};
