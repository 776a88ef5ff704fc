#pragma once

#include "platform/foundation/system/X11.h"

#include <QList>

/// Another program, as the X server sees it: a connection of its own. Keys are kernel (evdev) codes, modifiers are
/// masks of the server.
class OtherClient
{
public:
    OtherClient();

    bool isConnected() const { return !xcb_connection_has_error(connection_.get()); }

    /// On one screen; false when somebody else holds it there.
    bool grabKey(int evdevCode, quint16 modifiers, int screen = 0);
    void ungrabKey(int evdevCode, quint16 modifiers, int screen = 0);
    /// Whether somebody else holds it there.
    bool isHeldElsewhere(int evdevCode, quint16 modifiers, int screen = 0);
    /// The whole keyboard, as an open menu does; false when somebody else holds it.
    bool grabKeyboard();
    /// And has every key wait until it is let go, as a program does that asks what a key means here.
    bool grabKeyboardHoldingUpKeys();
    void ungrabKeyboard();

    /// Shows a window on a screen and gives it the focus.
    void takeFocus(int screen = 0);
    /// The keys whose presses it has received, in order.
    QList<int> pressedKeys();
    /// How many presses of mouse buttons it has received.
    int clicks();

    /// How soon and how fast the keyboard repeats a key, in milliseconds.
    void setKeyRepeat(quint16 delay, quint16 interval);
    /// Whether a modifier that is pressed and released counts for the next key.
    void setStickyKeys(bool areOn);
    /// The server's clock, in milliseconds.
    quint32 serverTime();

    /// Which keys are each modifier's, from Shift to Mod5, as keycodes of the server.
    QList<QList<int>> modifierKeys();
    void setModifierKeys(const QList<QList<int>> &keys);

    /// How many windows, passive grabs, event selections and the like the server keeps for the connections of a
    /// process.
    quint64 resourcesOf(qint64 process);
    /// How many bytes of pictures it keeps for them.
    quint64 pictureBytesOf(qint64 process);

private:
    QList<quint32> clientsOf(qint64 process);
    xcb_window_t rootOf(int screen) const;
    bool grabKeyboard(xcb_grab_mode_t keys);
    void useKeyboardExtension();
    void takeEvents();

    XConnection connection_;
    QList<int> pressedKeys_;
    int clicks_ = 0;
    xcb_window_t window_ = 0;
    quint32 lastTime_ = 0;
};
