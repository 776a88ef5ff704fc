#pragma once

#include "platform/foundation/colors/NSColor.h"

/// What the mark is drawn with, from its one colour. Pixels are 0xRRGGBB.
struct OverlayColors
{
    quint32 fill = 0; ///< of frame, tint and the ground of texts
    quint32 contrast = 0; ///< black or white: of lines and texts, never below 4.5:1 on `fill`
    double frameOpacity = 1; ///< never below 0.6, so that the frame is seen whatever lies below
    double tintOpacity = 0;

    bool operator==(const OverlayColors &) const = default;
};

/// Parts that are no numbers from 0 to 1 count as the nearest of them. No colour is black.
OverlayColors overlayColors(const NSColorRef &color);
