#pragma once

#include "agent/selection/Order.h"
#include "agent/selection/VisibleWindows.h"

// Where other windows lie from the selected one by the order that goes. One with an equal place is on neither side.

WindowList windowsToLeft(const WindowList &visible, const Standpoint &from);
WindowList windowsToRight(const WindowList &visible, const Standpoint &from);
WindowList windowsAbove(const WindowList &visible, const Standpoint &from);
WindowList windowsBelow(const WindowList &visible, const Standpoint &from);

/// A window and then all others that can be selected, in the order in which they are dug up: first those that overlap
/// it, from it down the stack and round from the top; then the rest the same way; minimised ones and those off the
/// screen last. Empty where the window is not there.
WindowList windowsUnderneath(const WindowWorld &world, quint32 windowID);

/// Where a window stands, or its icon does while nothing of it could show.
QRect placeOf(const WindowDescription &window, const WindowWorld &world);
