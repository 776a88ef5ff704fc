#pragma once

#include "platform/foundation/hotkeys/HotKeys.h"

/// An event on its way to the handlers.
struct OpaqueEventRef
{
    EventTypeSpec type;
    EventHotKeyID hotKeyID;
    quint32 time = 0;
};

/// Hands a hot key's press to the application target's handlers. `time` is that of the press. Nothing is thrown.
LM_FOUNDATION void dispatchHotKeyPressed(EventHotKeyID hotKeyID, quint32 time = 0);
