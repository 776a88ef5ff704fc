#include "platform/appkit/linux/WindowRequests.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

constexpr quint32 fromApplication = 1;
constexpr quint32 addState = 1;

/// The toolkit's, so that requests arrive in the order in which they were made; null without an X server.
xcb_connection_t *connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atom(const char *name)
{
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection(), xcb_intern_atom(connection(), 0, quint16(qstrlen(name)), name), nullptr),
        &std::free);
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

void send(const QWindow *window, const char *request, const std::array<quint32, 4> &data)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = xcb_window_t(window->winId());
    message.type = atom(request);
    std::copy(data.begin(), data.end(), message.data.data32);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    xcb_send_event(connection(), 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char *>(&message));
    xcb_flush(connection());
}

} // namespace

void askForActivation(const QWindow *window)
{
    if (connection())
        send(window, "_NET_ACTIVE_WINDOW", {fromApplication, XCB_CURRENT_TIME});
}

void askForAttention(const QWindow *window)
{
    if (connection())
        send(window, "_NET_WM_STATE",
            {addState, atom("_NET_WM_STATE_DEMANDS_ATTENTION"), XCB_ATOM_NONE, fromApplication});
}
