#include "platform/foundation/keyboard/linux/KeyboardLayoutData.h"

#include <utility>

namespace {

constexpr xkb_level_index_t numLockLevel = 1;

constexpr VirtualKeyCode lastTypingCode = 50;
constexpr VirtualKeyCode returnCode = 36;
constexpr VirtualKeyCode tabCode = 48;
constexpr VirtualKeyCode keypadDecimalCode = 65;
constexpr VirtualKeyCode yenCode = 93;
constexpr VirtualKeyCode underscoreCode = 94;

bool dependsOnTheLayout(VirtualKeyCode code)
{
    const bool isTypingKey = code <= lastTypingCode && code != returnCode && code != tabCode;
    return isTypingKey || code == yenCode || code == underscoreCode;
}

/// Of the keys that have virtual key codes also those that the keymap knows by an alias only.
KeyboardKeys keysOf(xkb_keymap *keymap)
{
    KeyboardKeys keys{xkb_keymap_min_keycode(keymap), xkb_keymap_max_keycode(keymap), {}};
    for (xkb_keycode_t keycode = keys.leastKeycode; keycode <= keys.greatestKeycode; ++keycode) {
        if (const char *name = xkb_keymap_key_get_name(keymap, keycode))
            keys.keycodes.insert(name, keycode);
    }
    for (const VirtualKey &key : virtualKeys()) {
        for (const PhysicalKey &physical : physicalKeysOf(key.code)) {
            const xkb_keycode_t keycode = xkb_keymap_key_by_name(keymap, physical.xkbName);
            if (keycode != XKB_KEYCODE_INVALID)
                keys.keycodes.insert(physical.xkbName, keycode);
        }
    }
    return keys;
}

} // namespace

XkbContext ownedContext(xkb_context *context)
{
    return context ? XkbContext(context, &xkb_context_unref) : nullptr;
}

XkbKeymap ownedKeymap(xkb_keymap *keymap)
{
    return keymap ? XkbKeymap(keymap, &xkb_keymap_unref) : nullptr;
}

XkbState ownedState(xkb_state *state)
{
    return state ? XkbState(state, &xkb_state_unref) : nullptr;
}

KeyboardLayoutData::KeyboardLayoutData(XkbKeymap keymap, xkb_layout_index_t group)
    : keymap_(std::move(keymap)), unmodified_(ownedState(xkb_state_new(keymap_.get())))
{
    if (unmodified_)
        xkb_state_update_mask(unmodified_.get(), 0, 0, 0, 0, 0, group);
}

char32_t KeyboardLayoutData::character(VirtualKeyCode virtualKeyCode) const
{
    const VirtualKey *key = virtualKey(virtualKeyCode);
    if (!key || !unmodified_)
        return 0;
    if (virtualKeyCode == keypadDecimalCode)
        return numLockCharacter(keycodeOf(*key));
    if (dependsOnTheLayout(virtualKeyCode))
        return typedCharacter(keycodeOf(*key));
    return key->character;
}

const KeyboardKeys &KeyboardLayoutData::keys() const
{
    if (!keys_)
        keys_ = keysOf(keymap_.get());
    return *keys_;
}

xkb_keycode_t KeyboardLayoutData::keycodeOf(const VirtualKey &key) const
{
    return keys().keycodeOf({key.evdev, key.xkbName}).value_or(XKB_KEYCODE_INVALID);
}

char32_t KeyboardLayoutData::typedCharacter(xkb_keycode_t key) const
{
    return xkb_keysym_to_utf32(xkb_state_key_get_one_sym(unmodified_.get(), key));
}

// Without Num Lock the key deletes; its sign stands one level up.
char32_t KeyboardLayoutData::numLockCharacter(xkb_keycode_t key) const
{
    const xkb_layout_index_t group = xkb_state_key_get_layout(unmodified_.get(), key);
    const xkb_keysym_t *symbols = nullptr;
    const int count = group == XKB_LAYOUT_INVALID
        ? 0
        : xkb_keymap_key_get_syms_by_level(keymap_.get(), key, group, numLockLevel, &symbols);
    return count == 1 ? xkb_keysym_to_utf32(symbols[0]) : typedCharacter(key);
}
