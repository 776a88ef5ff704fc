#pragma once

#include "platform/appkit/Export.h"

#include <QtGlobal>
#include <array>

struct xcb_connection_t;

// How a client asks the window manager for something: a message about a window, sent to the root window.

/// The number that this display has for a name, 0 when the display is gone.
LM_APPKIT quint32 displayAtom(xcb_connection_t *connection, const char *name);

/// Sends at once and waits for no answer: there is none.
LM_APPKIT void sendToWindowManager(
    xcb_connection_t *connection, quint32 window, const char *request, const std::array<quint32, 5> &data);
