#include "agent/overlay/x11/WindowIcon.h"

#include "agent/overlay/x11/IconChoice.h"

OverlayPicture windowIcon(const MarkDisplay &display, xcb_window_t window, int side)
{
    const auto read = [&display, window](quint32 start, quint32 length) -> PropertyItems {
        xcb_connection_t *const server = display.server();
        const auto reply = fromServer(xcb_get_property_reply(server,
            xcb_get_property(server, false, window, display.atoms().icon, XCB_ATOM_CARDINAL, start, length), nullptr));
        if (!reply || reply->type != XCB_ATOM_CARDINAL || reply->format != 32)
            return {};
        const auto *values = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
        return {{values, values + reply->value_len}, reply->bytes_after / 4};
    };
    return chosenIcon(read, side);
}
