#include "WindowListener.h"

#include <utility>

WindowListener::WindowListener() : connection_(connectToXServer())
{
    const quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    xcb_change_window_attributes(connection_.get(), root, XCB_CW_EVENT_MASK, &mask);
    takeEvents();
}

QList<QRect> WindowListener::places()
{
    takeEvents();
    return std::exchange(places_, {});
}

int WindowListener::appearances()
{
    takeEvents();
    return std::exchange(appearances_, 0);
}

int WindowListener::disappearances()
{
    takeEvents();
    return std::exchange(disappearances_, 0);
}

void WindowListener::takeEvents()
{
    fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    while (const auto event = fromServer(xcb_poll_for_queued_event(connection_.get())))
        take(event.get());
}

void WindowListener::take(const xcb_generic_event_t *event)
{
    const quint8 type = event->response_type & eventTypeMask;
    if (type == XCB_MAP_NOTIFY)
        ++appearances_;
    if (type == XCB_UNMAP_NOTIFY)
        ++disappearances_;
    if (type != XCB_CONFIGURE_NOTIFY)
        return;
    const auto *place = reinterpret_cast<const xcb_configure_notify_event_t *>(event);
    const QRect rect(place->x, place->y, place->width, place->height);
    if (places_.isEmpty() || places_.last() != rect)
        places_ += rect;
}
