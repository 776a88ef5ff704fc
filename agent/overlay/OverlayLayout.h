#pragma once

#include "agent/overlay/Overlay.h"
#include "agent/overlay/OverlayPictures.h"

#include <QList>
#include <QRect>

/// The parts of a frame, in pixels of the desktop.
struct FrameParts
{
    QList<QRect> frame; ///< all of it, lines included; they do not overlap
    QList<QRect> lines; ///< those on both sides, in the contrasting colour
    QRect inside; ///< what the tint covers; empty where the frame leaves nothing
};

/// The frame inside a rectangle that is not empty, for a monitor's density. One that is too small for a frame is
/// filled.
FrameParts framePartsIn(const QRect &rect, double scale);

/// Where the strip goes: its middle stays, whatever its width.
struct StripPlace
{
    int longest = 0;
    RoundCorners corners = RoundCorners::All;
    int middle = 0, top = 0;

    /// Within the monitor.
    QRect rectOf(QSize strip, const QRect &monitor) const;
};

/// Below the frame's upper edge where the window has room for it, else outside of the window; below the icon where
/// there is no frame.
StripPlace stripPlaceOf(const OverlayView &view);
/// The square for the selection's icon; empty where there is to be none.
QRect iconPlaceOf(const OverlayView &view);
/// The labels' squares, in their order; at the windows' upper left corners, but never one on another.
QList<QRect> labelPlacesOf(const OverlayView &view);
