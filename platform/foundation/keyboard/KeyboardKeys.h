#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QByteArray>
#include <QHash>
#include <optional>

/// Which key of a keyboard has which keycode: grabbing a key and taking a pressed one go by the same.
struct LM_FOUNDATION KeyboardKeys
{
    quint32 leastKeycode = 0;
    quint32 greatestKeycode = 0;
    QHash<QByteArray, quint32> keycodes; ///< by XKB key name, alias names included

    bool operator==(const KeyboardKeys &) const = default;

    /// Found by name, which holds for every kind of keyboard; by number only where that is nobody else's.
    std::optional<quint32> keycodeOf(const PhysicalKey &key) const;
    /// Of whose keys it is one; nothing for a key that has no code.
    std::optional<VirtualKeyCode> virtualKeyCodeOf(quint32 keycode) const;

private:
    bool isNamed(quint32 keycode) const;
};
