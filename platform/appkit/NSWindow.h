#pragma once

#include "platform/appkit/Export.h"

class QWidget;

// Windows as their owner orders them. On a null window nothing happens. Main thread only.

enum CGWindowLevelKey { kCGNormalWindowLevelKey = 4, kCGModalPanelWindowLevelKey = 10 };

/// The level of a kind of windows: those of a higher one stand on top of the others, whoever has the focus.
LM_APPKIT int CGWindowLevelForKey(CGWindowLevelKey key);
/// Called before a window is shown. This desktop has two levels: that of most windows, and all above it.
LM_APPKIT void setLevel(QWidget *window, int level);

/// Shows a window in front of its level, and has it take the keyboard where the window manager lets it.
LM_APPKIT void makeKeyAndOrderFront(QWidget *window);

/// The window that an alert of the whole application stands in front of: one above the level of most windows, or else
/// the one with the focus; null without either.
LM_APPKIT QWidget *frontWindow();
