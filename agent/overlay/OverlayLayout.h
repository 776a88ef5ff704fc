#pragma once

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
