#pragma once

#include "agent/windows/x11/WindowAtoms.h"

/// The X server whose windows are read, and what is known of it once and for all.
struct WindowServer
{
    xcb_connection_t *connection;
    const xcb_screen_t *screen;
    WindowAtoms atoms;
    bool tellsMonitors;
};
