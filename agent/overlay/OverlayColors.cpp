#include "agent/overlay/OverlayColors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double leastFrameOpacity = 0.6;
constexpr double tintShare = 0.25;
constexpr quint32 black = 0x000000, white = 0xffffff;

double withinUnit(float part)
{
    return part > 0 ? std::min(double(part), 1.0) : 0;
}

quint32 byteOf(double part)
{
    return quint32(std::lround(part * 255));
}

/// Of one part of a colour, as the accessibility guidelines for the web reckon it.
double linear(quint32 byte)
{
    const double part = double(byte) / 255;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(quint32 pixel)
{
    return 0.2126 * linear(pixel >> 16 & 0xff) + 0.7152 * linear(pixel >> 8 & 0xff) + 0.0722 * linear(pixel & 0xff);
}

/// The lesser of the two contrasts that black and white can have is the square root of 21 at worst.
quint32 contrastingWith(quint32 pixel)
{
    const double ground = luminance(pixel) + 0.05;
    return ground / 0.05 > 1.05 / ground ? black : white;
}

} // namespace

OverlayColors overlayColors(const NSColorRef &color)
{
    const std::array<float, 4> parts = color ? color->rgba() : std::array<float, 4>{0, 0, 0, 1};
    const double alpha = withinUnit(parts[3]);
    OverlayColors colors;
    for (size_t part = 0; part < 3; ++part)
        colors.fill = colors.fill << 8 | byteOf(withinUnit(parts[part]));
    colors.contrast = contrastingWith(colors.fill);
    colors.frameOpacity = std::max(alpha, leastFrameOpacity);
    colors.tintOpacity = alpha * tintShare;
    return colors;
}
