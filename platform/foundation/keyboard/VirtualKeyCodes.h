#pragma once

#include "platform/foundation/Export.h"

#include <QList>
#include <QtGlobal>
#include <optional>
#include <span>

/// One row of the table of virtual key codes: the code as it is stored, and the keys of this desktop that bear it.
struct VirtualKey
{
    quint16 code;
    quint16 evdev; ///< kernel key code; 0 for codes that no key has
    const char *xkbName; ///< XKB key name without brackets ("AC01"); empty for codes that no key has
    char16_t character; ///< what a US layout answers without modifiers; 0 for nothing
    bool recordable; ///< false for codes that must never be written
};

/// All rows, ascending by code.
LM_FOUNDATION std::span<const VirtualKey> virtualKeys();
/// The row of a virtual key code, or null.
LM_FOUNDATION const VirtualKey *virtualKey(quint16 code);
/// The virtual key code of a kernel key code, aliases included (Print Screen counts as 105 ...).
LM_FOUNDATION std::optional<quint16> virtualKeyCodeForEvdev(quint32 evdev);

/// A key of this desktop.
struct PhysicalKey
{
    quint16 evdev; ///< kernel key code
    const char *xkbName;
};

/// The keys that count as a virtual key code: its own first, then those that stand in for it (Print Screen for 105
/// ...). None for a code that no key has. 52 is kept as it is stored, but its key is that of 76, the keypad's Enter.
LM_FOUNDATION QList<PhysicalKey> physicalKeysOf(quint16 code);
/// The code whose keys a code has: 76 for 52, else itself.
LM_FOUNDATION quint16 pressedKeyCode(quint16 code);
