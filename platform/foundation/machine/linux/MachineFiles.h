#pragma once

#include "platform/foundation/machine/internal/SystemVersion.h"

// What the kernel and the system's own files say of this machine; nothing where they do not.

/// The model as the firmware names it; empty: none.
QByteArray machineModel();
/// Of the first processor, in Hz.
std::optional<quint64> processorClock();
std::optional<quint64> memoryMebibytes();
std::optional<quint32> processorsInUse();
std::optional<SystemVersion> systemVersion();
/// The kind of processor as four characters, the first in the highest byte.
std::optional<quint32> processorCode();
