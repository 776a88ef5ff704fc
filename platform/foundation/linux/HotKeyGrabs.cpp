#include "platform/foundation/linux/HotKeyGrabs.h"

#include "platform/foundation/HotKeys.h"
#include "platform/foundation/VirtualKeyCodes.h"

#include <limits>
#include <optional>
#include <set>
#include <utility>

namespace {

constexpr int evdevToX11 = 8;
constexpr quint32 hotKeyModifiers = cmdKey | shiftKey | optionKey | controlKey;
constexpr quint16 otherEnterKey = 52, enterKey = 76;

/// The row of a stored code. 52 is kept as it is stored, but no key of this desktop bears it: the keypad's Enter does.
const VirtualKey *keyOf(quint32 keyCode)
{
    if (keyCode > std::numeric_limits<quint16>::max())
        return nullptr;
    const VirtualKey *key = virtualKey(keyCode == otherEnterKey ? enterKey : quint16(keyCode));
    return key && key->evdev != 0 ? key : nullptr;
}

void addEvdev(std::set<quint8> &keycodes, quint16 evdev, const KeyboardMapping &keyboard)
{
    const int keycode = evdev + evdevToX11;
    if (keycode >= keyboard.leastKeycode && keycode <= keyboard.greatestKeycode)
        keycodes.insert(quint8(keycode));
}

/// Found by name, which holds for every kind of keyboard.
std::set<quint8> keycodesOf(const VirtualKey &key, const KeyboardMapping &keyboard)
{
    std::set<quint8> keycodes;
    const auto named = keyboard.keycodes.constFind(QByteArray::fromRawData(key.xkbName, qstrlen(key.xkbName)));
    if (named != keyboard.keycodes.cend())
        keycodes.insert(*named);
    else
        addEvdev(keycodes, key.evdev, keyboard);
    for (const quint16 alias : aliasEvdevsOf(key.code))
        addEvdev(keycodes, alias, keyboard);
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

bool isHotKeyCombination(quint32 keyCode, quint32 modifiers)
{
    return keyOf(keyCode) && !(modifiers & ~hotKeyModifiers);
}

std::vector<KeyGrab> grabsOf(quint32 keyCode, quint32 modifiers, const KeyboardMapping &keyboard)
{
    const VirtualKey *key = keyOf(keyCode);
    const auto mask = serverModifiers(modifiers, keyboard);
    std::vector<KeyGrab> grabs;
    if (!key || !mask)
        return grabs;
    for (const quint8 keycode : keycodesOf(*key, keyboard)) {
        // Every part of the lock bits, from all of them down to none.
        for (quint16 locks = keyboard.locks;; locks = quint16(locks - 1) & keyboard.locks) {
            grabs.push_back({keycode, quint16(*mask | locks)});
            if (locks == 0)
                break;
        }
    }
    return grabs;
}
