#pragma once

#include <xcb/xcb.h>

/// The server's time now, asked on a connection of its own: a server tells it with events only, and theirs are nobody
/// else's then. XCB_CURRENT_TIME where it does not answer.
xcb_timestamp_t currentServerTime();
