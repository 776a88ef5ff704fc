#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QString>
#include <array>

/// One of the agent's actions that a key triggers: where its key is stored, and the key it has when nothing is stored.
struct KTXActionKey
{
    QString preferenceName;
    VirtualKeyCode defaultKeyCode;
};

inline constexpr int KTXActionKeyCount = 11;
/// The first of them move the selection; only these are told of conflicts.
inline constexpr int KTXMovementKeyCount = 5;

/// The actions in the order of the hot key table's rows.
const std::array<KTXActionKey, KTXActionKeyCount> &KTXActionKeys();
