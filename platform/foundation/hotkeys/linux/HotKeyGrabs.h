#pragma once

#include "platform/foundation/hotkeys/internal/PressTracker.h"
#include "platform/foundation/keyboard/KeyboardMapping.h"
#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <vector>

/// Whether a combination can be had at all: a key of some keyboard, and modifiers that hot keys know.
bool isHotKeyCombination(VirtualKeyCode keyCode, quint32 modifiers);

/// The grabs that together are a combination: each key that counts as the virtual key code, with each state of the lock
/// keys. Empty where this keyboard has no such key or modifier.
std::vector<KeyGrab> grabsOf(VirtualKeyCode keyCode, quint32 modifiers, const KeyboardMapping &keyboard);
