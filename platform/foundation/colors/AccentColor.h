#pragma once

#include <QtGlobal>

/// What the system's selection colours look like where the desktop says nothing else, as 0xRRGGBB.
inline constexpr quint32 accentColor = 0x2a64b8;
