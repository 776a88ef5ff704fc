#pragma once

#include "platform/foundation/keyboard/KeyboardKeys.h"
#include "platform/foundation/keyboard/KeyboardLayout.h"

#include <xkbcommon/xkbcommon.h>

using XkbContext = std::shared_ptr<xkb_context>;
using XkbKeymap = std::shared_ptr<xkb_keymap>;
using XkbState = std::shared_ptr<xkb_state>;

/// Takes over a reference; a null pointer gives null.
XkbContext ownedContext(xkb_context *context);
XkbKeymap ownedKeymap(xkb_keymap *keymap);
XkbState ownedState(xkb_state *state);

/// One group of a keymap, as it was when it was read.
class KeyboardLayoutData
{
public:
    KeyboardLayoutData(XkbKeymap keymap, xkb_layout_index_t group);

    /// The character of a key without modifiers; 0 for a dead key, a modifier and an unknown code.
    char32_t character(VirtualKeyCode virtualKeyCode) const;

    const KeyboardKeys &keys() const;

private:
    xkb_keycode_t keycodeOf(const VirtualKey &key) const;
    char32_t typedCharacter(xkb_keycode_t key) const;
    char32_t numLockCharacter(xkb_keycode_t key) const;

    XkbKeymap keymap_;
    XkbState unmodified_;
    mutable std::optional<KeyboardKeys> keys_; ///< read when they are first asked for
};
