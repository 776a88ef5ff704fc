#include "KeyPress.h"

#include <QScopeGuard>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

namespace {

/// To the display that the test goes by now.
xcb_connection_t *connection()
{
    static std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(nullptr, &xcb_disconnect);
    static QByteArray display;
    const QByteArray wanted = qgetenv("DISPLAY");
    if (!connection || display != wanted)
        connection.reset(xcb_connect(nullptr, nullptr));
    display = wanted;
    return connection.get();
}

/// An answer comes after all that was asked before.
void waitForServer()
{
    windowWithKeyboard();
}

void send(quint8 type, quint8 detail, QPoint place = {})
{
    xcb_test_fake_input(
        connection(), type, detail, XCB_CURRENT_TIME, XCB_NONE, qint16(place.x()), qint16(place.y()), 0);
}

} // namespace

quint32 windowWithKeyboard()
{
    const std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)> reply(
        xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr), &std::free);
    return reply ? reply->focus : xcb_window_t(XCB_NONE);
}

void keyDown(int evdevCode)
{
    send(XCB_KEY_PRESS, quint8(evdevCode + evdevToX11));
    waitForServer();
}

void keyUp(int evdevCode)
{
    send(XCB_KEY_RELEASE, quint8(evdevCode + evdevToX11));
    waitForServer();
}

void pressKey(int evdevCode, const QList<int> &held)
{
    for (const int key : held)
        send(XCB_KEY_PRESS, quint8(key + evdevToX11));
    send(XCB_KEY_PRESS, quint8(evdevCode + evdevToX11));
    send(XCB_KEY_RELEASE, quint8(evdevCode + evdevToX11));
    for (const int key : held)
        send(XCB_KEY_RELEASE, quint8(key + evdevToX11));
    waitForServer();
}

void clickAt(QPoint place, MouseButton button)
{
    send(XCB_MOTION_NOTIFY, 0, place);
    send(XCB_BUTTON_PRESS, quint8(button));
    send(XCB_BUTTON_RELEASE, quint8(button));
    waitForServer();
}

void movePointerTo(QPoint place)
{
    send(XCB_MOTION_NOTIFY, 0, place);
    waitForServer();
}

void mouseDown(MouseButton button)
{
    send(XCB_BUTTON_PRESS, quint8(button));
    waitForServer();
}

void mouseUp(MouseButton button)
{
    send(XCB_BUTTON_RELEASE, quint8(button));
    waitForServer();
}

void turnWheel(Wheel direction)
{
    send(XCB_BUTTON_PRESS, quint8(direction));
    send(XCB_BUTTON_RELEASE, quint8(direction));
    waitForServer();
}
