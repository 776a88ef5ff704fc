#include "agent/overlay/OverlayColors.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

double linear(quint32 byte)
{
    const double part = double(byte) / 255;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(quint32 color)
{
    return 0.2126 * linear(color >> 16) + 0.7152 * linear(color >> 8 & 0xff) + 0.0722 * linear(color & 0xff);
}

double contrastOf(quint32 one, quint32 other)
{
    const auto [less, more] = std::minmax({luminance(one), luminance(other)});
    return (more + 0.05) / (less + 0.05);
}

OverlayColors colorsOf(float red, float green, float blue, float alpha = 1)
{
    return overlayColors(NSColor::colorWithDeviceRGBA(red, green, blue, alpha));
}

} // namespace

TEST(OverlayColors, haveTextThatCanBeReadOnEveryGround)
{
    for (int red = 0; red <= 255; red += 15) {
        for (int green = 0; green <= 255; green += 15) {
            for (int blue = 0; blue <= 255; blue += 15) {
                const OverlayColors colors = colorsOf(float(red) / 255, float(green) / 255, float(blue) / 255);
                ASSERT_EQ(colors.fill, quint32(red << 16 | green << 8 | blue));
                ASSERT_GE(contrastOf(colors.fill, colors.contrast), 4.5) << std::hex << colors.fill;
            }
        }
    }
}

TEST(OverlayColors, keepTheFrameVisible)
{
    EXPECT_DOUBLE_EQ(colorsOf(0, 0, 1, 0).frameOpacity, 0.6);
    EXPECT_NEAR(colorsOf(0, 0, 1, 0.9F).frameOpacity, 0.9, 1e-6);
    EXPECT_DOUBLE_EQ(colorsOf(0, 0, 1, 1).frameOpacity, 1);
}

TEST(OverlayColors, tintWithAQuarterOfTheAlpha)
{
    EXPECT_DOUBLE_EQ(colorsOf(0, 0, 1, 0).tintOpacity, 0);
    EXPECT_NEAR(colorsOf(0, 0, 1, 0.4F).tintOpacity, 0.1, 1e-6);
    EXPECT_DOUBLE_EQ(colorsOf(0, 0, 1, 1).tintOpacity, 0.25);
}

TEST(OverlayColors, areWithinBoundsWhateverTheColour)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    const OverlayColors odd = colorsOf(nan, -3, infinity, nan);
    EXPECT_EQ(odd.fill, 0x0000ffu);
    EXPECT_DOUBLE_EQ(odd.frameOpacity, 0.6);
    EXPECT_DOUBLE_EQ(odd.tintOpacity, 0);
    EXPECT_EQ(overlayColors(nullptr), colorsOf(0, 0, 0));
    EXPECT_EQ(overlayColors(NSColor::colorWithDeviceWhiteAlpha(0.5F, 1)).fill, 0x808080u);
}
