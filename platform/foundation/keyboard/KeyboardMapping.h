#pragma once

#include "platform/foundation/keyboard/KeyboardKeys.h"
#include "platform/foundation/system/X11.h"

#include <optional>

/// Which key code and which modifier bit stands for what on the server's keyboard, in every layout group.
struct KeyboardMapping
{
    KeyboardKeys keys;
    quint16 option = 0; ///< the modifier that holds Alt, else the one that holds Meta; 0 where none does
    quint16 command = 0; ///< the one that holds Super; 0 where none does
    quint16 locks = XCB_MOD_MASK_LOCK; ///< Caps Lock, and the modifiers that hold Num Lock and Scroll Lock

    bool operator==(const KeyboardMapping &) const = default;
};

/// As it is now, in one round trip; no value once the server is gone.
LM_FOUNDATION std::optional<KeyboardMapping> readKeyboardMapping(xcb_connection_t *connection);
