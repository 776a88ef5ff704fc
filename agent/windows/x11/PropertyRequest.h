#pragma once

#include "agent/windows/x11/PropertyDecoding.h"

/// A property as it came; its bytes live as long as this.
class ReceivedProperty
{
public:
    /// Waits for the answer.
    ReceivedProperty(xcb_connection_t *server, xcb_get_property_cookie_t asked)
        : reply_(fromServer(xcb_get_property_reply(server, asked, nullptr)))
    {
    }

    /// False where the window has gone.
    bool isAnswered() const { return reply_ != nullptr; }
    PropertyBytes bytes() const
    {
        if (!reply_)
            return {};
        return {reply_->type, reply_->format,
            {static_cast<const char *>(xcb_get_property_value(reply_.get())),
                xcb_get_property_value_length(reply_.get())}};
    }

private:
    FromServer<xcb_get_property_reply_t> reply_;
};

/// Asks for at most so many units of 4 bytes, whatever the property's type.
inline xcb_get_property_cookie_t askProperty(
    xcb_connection_t *server, xcb_window_t window, xcb_atom_t property, quint32 units)
{
    return xcb_get_property(server, false, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, units);
}
