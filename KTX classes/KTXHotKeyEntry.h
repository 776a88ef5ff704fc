#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QVariantMap>
#include <optional>

// A hot key as it is stored: under its action's name, a dictionary with the key code as a text of digits.

/// What is stored for a key.
QVariantMap hotKeyEntry(VirtualKeyCode keyCode);

/// The number that a stored value gives as its key code, of which the low 16 bits name the key; 0 where it gives none
/// ("F1"). Nothing for what is no dictionary with a key code: the action then has its default key, in a pane that is
/// open the key that it had.
std::optional<VirtualKeyCode> keyCodeOf(const QVariant &entry);
