#pragma once

#include "platform/foundation/system/X11.h"

#include <QHash>
#include <QList>
#include <QRect>

/// Which child of the root holds each window: itself, or the outermost of its manager's. Windows that have gone are
/// left out. Takes as many round trips as the deepest window has ancestors, for all together.
QHash<xcb_window_t, xcb_window_t> holdersOf(
    xcb_connection_t *server, xcb_window_t root, const QList<xcb_window_t> &windows);

/// Where those are, borders included, by each window's number.
QHash<xcb_window_t, QRect> holderRects(xcb_connection_t *server, xcb_window_t root, const QList<xcb_window_t> &windows);
