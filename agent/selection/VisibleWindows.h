#pragma once

#include "agent/windows/WindowWorld.h"

#include <vector>

/// Windows of one reading, which outlives the list.
using WindowList = std::vector<const WindowDescription *>;

/// The candidates of which enough shows to be walked to: 4,096 pixels or a quarter, whichever is less. Topmost first.
WindowList visibleWindows(const WindowWorld &world);

/// The visible windows that get a digit, in reading order: rows from the top, each from the left; at most 9.
WindowList labelledWindows(const WindowWorld &world);

/// Whether another window hides a window's middle; false for one of which nothing could show.
bool isCoveredInTheMiddle(const WindowWorld &world, quint32 windowID);

/// Whether another window hides any part of a window; false for one of which nothing could show.
bool isOverlapped(const WindowWorld &world, quint32 windowID);
