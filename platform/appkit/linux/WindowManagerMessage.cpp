#include "platform/appkit/linux/WindowManagerMessage.h"

#include "platform/foundation/system/X11.h"

#include <algorithm>

quint32 displayAtom(xcb_connection_t *connection, const char *name)
{
    const auto reply = fromServer(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, quint16(qstrlen(name)), name), nullptr));
    return reply ? reply->atom : quint32(XCB_ATOM_NONE);
}

void sendToWindowManager(
    xcb_connection_t *connection, quint32 window, const char *request, const std::array<quint32, 5> &data)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = displayAtom(connection, request);
    std::copy(data.begin(), data.end(), message.data.data32);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
}
