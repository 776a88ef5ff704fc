#pragma once

#include "platform/foundation/system/X11.h"

#include <QByteArray>
#include <QHash>
#include <optional>

/// Which key code and which modifier bit stands for what on the server's keyboard, in every layout group.
struct KeyboardMapping
{
    quint8 leastKeycode = 0;
    quint8 greatestKeycode = 0;
    QHash<QByteArray, quint8> keycodes; ///< by XKB key name, alias names included
    quint16 option = 0; ///< the modifier that holds Alt, else the one that holds Meta; 0 where none does
    quint16 command = 0; ///< the one that holds Super; 0 where none does
    quint16 locks = XCB_MOD_MASK_LOCK; ///< Caps Lock, and the modifiers that hold Num Lock and Scroll Lock

    bool isNamed(quint8 keycode) const;
    bool operator==(const KeyboardMapping &) const = default;
};

/// As it is now, in one round trip; no value once the server is gone.
std::optional<KeyboardMapping> readKeyboardMapping(xcb_connection_t *connection);
