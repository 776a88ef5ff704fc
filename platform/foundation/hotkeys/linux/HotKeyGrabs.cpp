#include "platform/foundation/hotkeys/linux/HotKeyGrabs.h"

#include "platform/foundation/hotkeys/HotKeys.h"

#include <optional>
#include <set>
#include <utility>

namespace {

constexpr quint32 hotKeyModifiers = cmdKey | shiftKey | optionKey | controlKey;

std::set<quint8> keycodesOf(VirtualKeyCode keyCode, const KeyboardMapping &keyboard)
{
    std::set<quint8> keycodes;
    for (const PhysicalKey &key : physicalKeysOf(keyCode)) {
        if (const auto keycode = keyboard.keys.keycodeOf(key))
            keycodes.insert(quint8(*keycode));
    }
    return keycodes;
}

/// No value where a modifier that is asked for is on no key.
std::optional<quint16> serverModifiers(quint32 modifiers, const KeyboardMapping &keyboard)
{
    const std::pair<quint32, quint16> bits[]{{shiftKey, XCB_MOD_MASK_SHIFT}, {controlKey, XCB_MOD_MASK_CONTROL},
        {optionKey, keyboard.option}, {cmdKey, keyboard.command}};
    quint16 mask = 0;
    for (const auto &[modifier, bit] : bits) {
        if (!(modifiers & modifier))
            continue;
        if (bit == 0)
            return std::nullopt;
        mask |= bit;
    }
    return mask;
}

} // namespace

bool isHotKeyCombination(VirtualKeyCode keyCode, quint32 modifiers)
{
    return !physicalKeysOf(keyCode).isEmpty() && !(modifiers & ~hotKeyModifiers);
}

std::vector<KeyGrab> grabsOf(VirtualKeyCode keyCode, quint32 modifiers, const KeyboardMapping &keyboard)
{
    const auto mask = serverModifiers(modifiers, keyboard);
    std::vector<KeyGrab> grabs;
    if (!mask)
        return grabs;
    for (const quint8 keycode : keycodesOf(keyCode, keyboard)) {
        // Every part of the lock bits, from all of them down to none.
        for (quint16 locks = keyboard.locks;; locks = quint16(locks - 1) & keyboard.locks) {
            grabs.push_back({keycode, quint16(*mask | locks)});
            if (locks == 0)
                break;
        }
    }
    return grabs;
}
