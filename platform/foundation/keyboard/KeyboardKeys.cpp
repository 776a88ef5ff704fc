#include "platform/foundation/keyboard/KeyboardKeys.h"

#include <algorithm>

bool KeyboardKeys::isNamed(quint32 keycode) const
{
    return std::find(keycodes.cbegin(), keycodes.cend(), keycode) != keycodes.cend();
}

std::optional<quint32> KeyboardKeys::keycodeOf(const PhysicalKey &key) const
{
    const auto named = keycodes.constFind(QByteArray::fromRawData(key.xkbName, qsizetype(qstrlen(key.xkbName))));
    if (named != keycodes.cend())
        return *named;
    const quint32 keycode = key.evdev + evdevToX11;
    if (keycode < leastKeycode || keycode > greatestKeycode || isNamed(keycode))
        return std::nullopt;
    return keycode;
}

std::optional<VirtualKeyCode> KeyboardKeys::virtualKeyCodeOf(quint32 keycode) const
{
    for (const VirtualKey &key : virtualKeys()) {
        const QList<PhysicalKey> physicalKeys = key.recordable ? physicalKeysOf(key.code) : QList<PhysicalKey>();
        for (const PhysicalKey &physical : physicalKeys) {
            if (keycodeOf(physical) == keycode)
                return key.code;
        }
    }
    return std::nullopt;
}
