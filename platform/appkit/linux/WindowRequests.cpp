#include "platform/appkit/WindowRequests.h"

#include "platform/appkit/linux/WindowManagerMessage.h"

#include <QGuiApplication>
#include <QWindow>

namespace {

constexpr quint32 fromApplication = 1;
constexpr quint32 addState = 1;

/// The toolkit's, so that requests arrive in the order in which they were made; null without an X server.
xcb_connection_t *connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

} // namespace

void askForActivation(const QWindow *window, quint32 time)
{
    if (connection())
        sendToWindowManager(connection(), quint32(window->winId()), "_NET_ACTIVE_WINDOW", {fromApplication, time});
}

void askForAttention(const QWindow *window)
{
    if (connection())
        sendToWindowManager(connection(), quint32(window->winId()), "_NET_WM_STATE",
            {addState, displayAtom(connection(), "_NET_WM_STATE_DEMANDS_ATTENTION"), 0, fromApplication});
}
