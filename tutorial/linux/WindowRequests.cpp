#include "tutorial/WindowRequests.h"

#include "platform/foundation/system/X11.h"

#include <QGuiApplication>
#include <QWidget>

namespace {

constexpr quint32 fromTaskBar = 2;

/// The toolkit's, so that requests arrive in the order in which they were made; null without an X server.
xcb_connection_t *connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

quint32 atom(const char *name)
{
    const auto reply = fromServer(
        xcb_intern_atom_reply(connection(), xcb_intern_atom(connection(), 0, quint16(qstrlen(name)), name), nullptr));
    return reply ? reply->atom : quint32(XCB_ATOM_NONE);
}

} // namespace

void leaveOutOfTaskBars(QWidget *window)
{
    if (!connection())
        return;
    // The toolkit adds to what it finds here when it shows the window.
    const quint32 states[]{atom("_NET_WM_STATE_SKIP_TASKBAR"), atom("_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, quint32(window->winId()), atom("_NET_WM_STATE"),
        XCB_ATOM_ATOM, 32, std::size(states), states);
}

void turnTo(QWidget *window)
{
    window->raise();
    if (!connection())
        return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = quint32(window->winId());
    message.type = atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = fromTaskBar;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    xcb_send_event(connection(), 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char *>(&message));
    xcb_flush(connection());
}
