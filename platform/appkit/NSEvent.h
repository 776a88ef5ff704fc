#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

enum class NSEventType { Other, KeyDown };

/// The modifiers held during a key press.
enum NSEventModifierFlags : quint32 {
    NSShiftKeyMask = 0x20000,
    NSControlKeyMask = 0x40000,
    NSAlternateKeyMask = 0x80000,
    NSCommandKeyMask = 0x100000
};

/// What the user has just done, as far as a delegate may ask.
struct NSEvent
{
    NSEventType type = NSEventType::Other;
    VirtualKeyCode keyCode; ///< of the key itself, the same in every keyboard layout
    quint32 modifierFlags = 0;
};
