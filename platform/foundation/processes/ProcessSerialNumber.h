#pragma once

#include <QtGlobal>

/// A running process; both halves are zero for no process.
struct ProcessSerialNumber
{
    quint32 highLongOfPSN = 0;
    quint32 lowLongOfPSN = 0;

    bool operator==(const ProcessSerialNumber &) const = default;
};

inline constexpr ProcessSerialNumber kNoProcess{};
