#include "host/linux/WindowActivation.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QWidget>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

constexpr auto waylandToken = "XDG_ACTIVATION_TOKEN";
constexpr auto x11Token = "DESKTOP_STARTUP_ID";
constexpr quint32 fromApplication = 1;

using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

/// A startup id ends in "_TIME" and the X server's time of the user's click.
quint32 timeOf(const QString &token)
{
    static const QRegularExpression pattern(QStringLiteral("_TIME(\\d+)$"));
    return pattern.match(token).captured(1).toUInt();
}

xcb_atom_t activeWindowAtom(xcb_connection_t *connection)
{
    constexpr char name[] = "_NET_ACTIVE_WINDOW";
    xcb_intern_atom_reply_t *reply =
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, sizeof name - 1, name), nullptr);
    const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    std::free(reply);
    return atom;
}

void askWindowManager(xcb_window_t window, quint32 time)
{
    const Connection connection(xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()))
        return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = activeWindowAtom(connection.get());
    message.data.data32[0] = fromApplication;
    message.data.data32[1] = time;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    xcb_send_event(connection.get(), 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char *>(&message));
    xcb_flush(connection.get());
}

} // namespace

QString takeActivationToken()
{
    const char *variable = qEnvironmentVariableIsEmpty(waylandToken) ? x11Token : waylandToken;
    return qEnvironmentVariable(variable);
}

void activateWindowWithToken(QWidget *window, const QString &token)
{
    // Qt takes the token for its next activation from the environment.
    if (!token.isEmpty())
        qputenv(waylandToken, token.toUtf8());
    window->activateWindow();
    // Qt names its own last time of use, which a window manager may find too old; the start's time is the user's newest
    // wish.
    const quint32 time = timeOf(token);
    if (time != 0 && QGuiApplication::platformName() == QStringLiteral("xcb"))
        askWindowManager(xcb_window_t(window->winId()), time);
}
