#pragma once

#include "agent/actions/x11/ActionConnection.h"

#include <QRect>

/// Whether such windows can be had here.
bool canLetClicksThrough(const ActionConnection &connection);

/// A window that shows something and else is none: no manager has it, and it takes no key, no click and no focus, nor a
/// compositor's shadow. Not on screen yet; its border lies around the rectangle.
xcb_window_t makeWindowForShow(const ActionConnection &connection, const QRect &rect, quint16 borderWidth);
