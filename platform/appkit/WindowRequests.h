#pragma once

#include "platform/appkit/Export.h"

#include <QtGlobal>

class QWindow;

// What the window manager is asked for. The toolkit's own requests wait until a window is on screen, which one of
// another desktop is not, and name a time of their own. Without an X server these do nothing.

/// On behalf of what the user did at a time of the X server's clock, or at one that nobody knows: then the window
/// manager judges by what it has seen last of the user.
LM_APPKIT void askForActivation(const QWindow *window, quint32 time = 0);
/// Until the window has the focus.
LM_APPKIT void askForAttention(const QWindow *window);
