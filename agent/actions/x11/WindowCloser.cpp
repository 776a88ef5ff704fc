#include "agent/actions/x11/WindowCloser.h"

#include <algorithm>

namespace {

constexpr quint32 fromUserByPager = 2;
// Nobody speaks so many.
constexpr quint32 mostProtocols = 64;
// Of dialogs on dialogs.
constexpr int mostParents = 8;

/// Numbers of 32 bits; null where the property has another type.
FromServer<xcb_get_property_reply_t> propertyOf(
    const ActionConnection &connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type, quint32 most)
{
    auto reply = fromServer(xcb_get_property_reply(
        connection.server(), xcb_get_property(connection.server(), false, window, property, type, 0, most), nullptr));
    if (reply && (reply->type != type || reply->format != 32))
        reply.reset();
    return reply;
}

const quint32 *numbersOf(const FromServer<xcb_get_property_reply_t> &property)
{
    return static_cast<const quint32 *>(xcb_get_property_value(property.get()));
}

xcb_window_t parentOf(const ActionConnection &connection, xcb_window_t window)
{
    const auto parent = propertyOf(connection, window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 1);
    return parent && parent->value_len > 0 ? *numbersOf(parent) : xcb_window_t(XCB_WINDOW_NONE);
}

} // namespace

WindowCloser::WindowCloser()
{
    connect(&connection_, &ActionConnection::wasLost, this, &WindowCloser::windowsDidChange);
}

bool WindowCloser::canBeAsked(quint32 window) const
{
    const auto protocols =
        propertyOf(connection_, window, connection_.atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, mostProtocols);
    if (!protocols)
        return false;
    const quint32 *const all = numbersOf(protocols), *const end = all + protocols->value_len;
    return std::find(all, end, connection_.atom("WM_DELETE_WINDOW")) != end;
}

void WindowCloser::ask(quint32 window, quint32 time)
{
    clientList_ = connection_.atom("_NET_CLIENT_LIST");
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = connection_.atom("_NET_CLOSE_WINDOW");
    message.data = {.data32 = {time == XCB_CURRENT_TIME ? connection_.time() : time, fromUserByPager}};
    const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_.server(), connection_.root(), XCB_CW_EVENT_MASK, &events);
    constexpr quint32 toManager = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_send_event(
        connection_.server(), false, connection_.root(), toManager, reinterpret_cast<const char *>(&message));
    connection_.listen([this](const xcb_generic_event_t &event) { handleEvent(event); });
}

void WindowCloser::handleEvent(const xcb_generic_event_t &event)
{
    const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if ((event.response_type & eventTypeMask) == XCB_PROPERTY_NOTIFY && change.atom == clientList_)
        Q_EMIT windowsDidChange();
}

bool WindowCloser::belongsTo(quint32 window, quint32 other) const
{
    for (int step = 0; step < mostParents && window != XCB_WINDOW_NONE; ++step) {
        window = parentOf(connection_, window);
        if (window == other)
            return true;
    }
    return false;
}

void WindowCloser::endProgramOf(quint32 window)
{
    const ActionConnection connection;
    if (connection.isLost())
        return;
    // Waits, since the server may not read what it is sent by a connection that has gone.
    fromServer(xcb_request_check(connection.server(), xcb_kill_client_checked(connection.server(), window)));
}
