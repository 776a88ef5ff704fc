#pragma once

#include "agent/windows/WindowWorld.h"

/// A reading for people, in columns: each window topmost first, whether it can be selected and else why not; then the
/// monitors. Ends with a line's end.
QString windowTable(const WindowWorld &world);
