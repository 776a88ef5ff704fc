#pragma once

#include <QtGlobal>

// The bits of a modifier mask, as it is stored and as hot keys are registered.

inline constexpr quint32 KTXCommandModifier = 0x100;
inline constexpr quint32 KTXShiftModifier = 0x200;
inline constexpr quint32 KTXOptionModifier = 0x800;
inline constexpr quint32 KTXControlModifier = 0x1000;
/// The only bits that a mask keeps.
inline constexpr quint32 KTXAllModifiers =
    KTXCommandModifier | KTXShiftModifier | KTXOptionModifier | KTXControlModifier;
/// What activates Lumaroo until the user chooses otherwise.
inline constexpr quint32 DEFAULT_MODIFIER_MASK = KTXControlModifier | KTXOptionModifier;
