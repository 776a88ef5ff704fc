#pragma once

#include "agent/windows/WindowDescription.h"

/// A text in the user's language.
QString actionText(const char *text);
/// What a window is called in such a text, also where it has no title.
QString shownTitle(const WindowDescription &window);
