#include "platform/appkit/colors/ColorMixing.h"

QColor mixed(const QColor &one, const QColor &other, float shareOfOther)
{
    const auto mix = [shareOfOther](float from, float to) { return from + (to - from) * shareOfOther; };
    return QColor::fromRgbF(
        mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()), mix(one.blueF(), other.blueF()));
}
