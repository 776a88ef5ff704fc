#include "platform/foundation/keyboard/KeyboardMapping.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace {

constexpr int modifierCount = 8, firstFreeModifier = 3; // after Shift, Lock and Control
constexpr quint32 keyNames = XCB_XKB_NAME_DETAIL_KEY_NAMES | XCB_XKB_NAME_DETAIL_KEY_ALIASES;

/// The keys of each modifier, and the keysyms of each key.
struct ModifierKeys
{
    FromServer<xcb_get_modifier_mapping_reply_t> modifiers;
    FromServer<xcb_get_keyboard_mapping_reply_t> keyboard;
    quint8 leastKeycode;

    std::span<const xcb_keycode_t> keysOf(int modifier) const
    {
        const size_t count = modifiers->keycodes_per_modifier;
        return {xcb_get_modifier_mapping_keycodes(modifiers.get()) + size_t(modifier) * count, count};
    }
    std::span<const xcb_keysym_t> keysymsOf(xcb_keycode_t key) const
    {
        const size_t count = keyboard->keysyms_per_keycode;
        const size_t start = size_t(key - leastKeycode) * count;
        const auto length = size_t(xcb_get_keyboard_mapping_keysyms_length(keyboard.get()));
        // A modifier has places for more keys than it has; those are 0.
        if (key < leastKeycode || start + count > length)
            return {};
        return {xcb_get_keyboard_mapping_keysyms(keyboard.get()) + start, count};
    }
};

bool bears(const ModifierKeys &keys, xcb_keycode_t key, std::initializer_list<xcb_keysym_t> wanted)
{
    const auto keysyms = keys.keysymsOf(key);
    return std::find_first_of(keysyms.begin(), keysyms.end(), wanted.begin(), wanted.end()) != keysyms.end();
}

/// The mask of the first modifier with a key that bears one of these, or 0.
quint16 modifierWith(const ModifierKeys &keys, std::initializer_list<xcb_keysym_t> wanted)
{
    for (int modifier = firstFreeModifier; modifier < modifierCount; ++modifier) {
        const auto all = keys.keysOf(modifier);
        if (std::any_of(all.begin(), all.end(), [&](xcb_keycode_t key) { return bears(keys, key, wanted); }))
            return quint16(1 << modifier);
    }
    return 0;
}

void readModifiers(KeyboardMapping &mapping, const ModifierKeys &keys)
{
    const quint16 alt = modifierWith(keys, {XKB_KEY_Alt_L, XKB_KEY_Alt_R});
    mapping.option = alt ? alt : modifierWith(keys, {XKB_KEY_Meta_L, XKB_KEY_Meta_R});
    mapping.command = modifierWith(keys, {XKB_KEY_Super_L, XKB_KEY_Super_R});
    mapping.locks |= modifierWith(keys, {XKB_KEY_Num_Lock}) | modifierWith(keys, {XKB_KEY_Scroll_Lock});
    mapping.locks &= ~(mapping.option | mapping.command);
}

QByteArray keyName(const char *characters, size_t most)
{
    return {characters, qsizetype(qstrnlen(characters, most))};
}

void readKeyNames(KeyboardKeys &keys, const xcb_xkb_get_names_reply_t *reply)
{
    xcb_xkb_get_names_value_list_t names{};
    xcb_xkb_get_names_value_list_unpack(xcb_xkb_get_names_value_list(reply), reply->nTypes, reply->indicators,
        reply->virtualMods, reply->groupNames, reply->nKeys, reply->nKeyAliases, reply->nRadioGroups, reply->which,
        &names);
    for (int key = 0; key < reply->nKeys; ++key) {
        const QByteArray name = keyName(names.keyNames[key].name, sizeof names.keyNames[key].name);
        if (!name.isEmpty())
            keys.keycodes.insert(name, quint32(reply->firstKey + key));
    }
    for (int alias = 0; alias < reply->nKeyAliases; ++alias) {
        const xcb_xkb_key_alias_t &pair = names.keyAliases[alias];
        // A copy: what a hash table holds moves when something is added to it.
        const quint32 keycode = keys.keycodes.value(keyName(pair.real, sizeof pair.real));
        if (keycode != 0)
            keys.keycodes.insert(keyName(pair.alias, sizeof pair.alias), keycode);
    }
}

} // namespace

std::optional<KeyboardMapping> readKeyboardMapping(xcb_connection_t *connection)
{
    const xcb_setup_t *setup = xcb_get_setup(connection);
    KeyboardMapping mapping;
    mapping.keys.leastKeycode = setup->min_keycode;
    mapping.keys.greatestKeycode = setup->max_keycode;
    const auto names = xcb_xkb_get_names(connection, XCB_XKB_ID_USE_CORE_KBD, keyNames);
    const auto modifiers = xcb_get_modifier_mapping(connection);
    const auto keyboard =
        xcb_get_keyboard_mapping(connection, setup->min_keycode, quint8(setup->max_keycode - setup->min_keycode + 1));
    const auto nameReply = fromServer(xcb_xkb_get_names_reply(connection, names, nullptr));
    const ModifierKeys keys{fromServer(xcb_get_modifier_mapping_reply(connection, modifiers, nullptr)),
        fromServer(xcb_get_keyboard_mapping_reply(connection, keyboard, nullptr)), setup->min_keycode};
    if (!nameReply || !keys.modifiers || !keys.keyboard)
        return std::nullopt;
    readModifiers(mapping, keys);
    readKeyNames(mapping.keys, nameReply.get());
    return mapping;
}
