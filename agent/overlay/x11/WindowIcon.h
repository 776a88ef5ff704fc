#pragma once

#include "agent/overlay/OverlayPictures.h"
#include "agent/overlay/x11/MarkDisplay.h"

/// The icon that a window has set, in the size that is nearest to `side` from above, or else in its greatest. Empty
/// where there is none, or none that can be believed: what a program has set there is looked at up to the first size
/// that cannot be. Some round trips.
OverlayPicture windowIcon(const MarkDisplay &display, xcb_window_t window, int side);
