#pragma once

#include <QtGlobal>
#include <algorithm>

/// A length that is told for a scale of 1; at least one pixel.
inline int scaledLength(double length, double scale)
{
    return std::max(1, qRound(length * scale));
}

inline int stripHeight(double scale)
{
    return scaledLength(30, scale);
}
