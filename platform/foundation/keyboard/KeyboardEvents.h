#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/system/X11.h"

#include <optional>

/// What a connection's events of the keyboard begin with.
struct KeyboardEventCodes
{
    quint8 firstKeyboardEvent = 0; ///< of the keyboard extension
    quint8 inputExtension = 0; ///< the input extension's own, in generic events
};

/// Has a connection told of changes of the keyboard, its map and the given parts of its state (XCB_XKB_STATE_PART_...),
/// with held keys that repeat without releases in between. Raw events of keys can be asked for afterwards. No value
/// where the server lacks the keyboard extension or version 2.1 of the input extension, or is gone.
LM_FOUNDATION std::optional<KeyboardEventCodes> startKeyboardEvents(xcb_connection_t *connection, quint16 stateParts);
