#pragma once

#include "platform/foundation/Export.h"

#include <QList>
#include <QtGlobal>
#include <compare>
#include <optional>
#include <span>

/// The code of a key by its place on the keyboard, as it is stored. No key has one beyond 16 bits, but any number may
/// be stored, and one of 32 bits stays apart from the code of its low bits. Not to be mixed up with the kernel's codes
/// and the X server's.
class VirtualKeyCode
{
public:
    constexpr VirtualKeyCode() = default;
    constexpr VirtualKeyCode(quint32 number) : number_(number) { }

    constexpr quint32 number() const { return number_; }
    /// What it is named by.
    constexpr VirtualKeyCode low16Bits() const { return number_ & 0xffff; }

    constexpr std::strong_ordering operator<=>(const VirtualKeyCode &) const = default; // NOLINT(modernize-use-nullptr)

private:
    quint32 number_ = 0;
};

/// What the X server's keycodes, and with them the toolkit's scan codes, are above the kernel's codes.
inline constexpr int evdevToX11 = 8;

/// One row of the table of virtual key codes: the code as it is stored, and the keys of this desktop that bear it.
struct VirtualKey
{
    VirtualKeyCode code;
    quint16 evdev; ///< kernel key code; 0 for codes that no key has
    const char *xkbName; ///< XKB key name without brackets ("AC01"); empty for codes that no key has
    char16_t character; ///< what a US layout answers without modifiers; 0 for nothing
    bool recordable; ///< false for codes that must never be written
};

/// All rows, ascending by code.
LM_FOUNDATION std::span<const VirtualKey> virtualKeys();
/// The row of a virtual key code, or null.
LM_FOUNDATION const VirtualKey *virtualKey(VirtualKeyCode code);
/// The virtual key code of a kernel key code, aliases included (Print Screen counts as 105 ...).
LM_FOUNDATION std::optional<VirtualKeyCode> virtualKeyCodeForEvdev(quint32 evdev);

/// A key of this desktop.
struct PhysicalKey
{
    quint16 evdev; ///< kernel key code
    const char *xkbName;
};

/// The keys that count as a virtual key code: its own first, then those that stand in for it (Print Screen for 105
/// ...). None for a code that no key has. 52 is kept as it is stored, but its key is that of 76, the keypad's Enter.
LM_FOUNDATION QList<PhysicalKey> physicalKeysOf(VirtualKeyCode code);
/// The code whose keys a code has: 76 for 52, else itself.
LM_FOUNDATION VirtualKeyCode pressedKeyCode(VirtualKeyCode code);
