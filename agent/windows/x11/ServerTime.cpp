#include "agent/windows/x11/ServerTime.h"

#include "platform/foundation/system/X11.h"

namespace {

/// A window that never shows, which tells of its properties.
xcb_window_t createListener(xcb_connection_t *server)
{
    const xcb_window_t window = xcb_generate_id(server);
    const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(server, 0, window, xcb_setup_roots_iterator(xcb_get_setup(server)).data->root, 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    return window;
}

} // namespace

xcb_timestamp_t currentServerTime()
{
    const XConnection connection = connectToXServer();
    xcb_connection_t *const server = connection.get();
    if (xcb_connection_has_error(server))
        return XCB_CURRENT_TIME;
    const xcb_window_t listener = createListener(server);
    xcb_change_property(server, XCB_PROP_MODE_APPEND, listener, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(server);
    while (const auto event = fromServer(xcb_wait_for_event(server))) {
        if ((event->response_type & eventTypeMask) == XCB_PROPERTY_NOTIFY)
            return reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->time;
    }
    return XCB_CURRENT_TIME;
}
