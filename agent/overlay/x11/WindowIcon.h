#pragma once

#include "agent/overlay/OverlayPictures.h"
#include "agent/overlay/x11/MarkDisplay.h"

/// The icon that a window has set, of a size that suits `side` (IconChoice.h). Some round trips.
OverlayPicture windowIcon(const MarkDisplay &display, xcb_window_t window, int side);
