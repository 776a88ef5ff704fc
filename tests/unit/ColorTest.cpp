#include "platform/foundation/colors/NSColor.h"

#include <gtest/gtest.h>
#include <limits>

namespace {
using Drawn = std::array<float, 4>;
}

TEST(Color, aSystemColourIsOneObjectForTheLifeOfTheProcess)
{
    EXPECT_EQ(NSColor::selectedTextBackgroundColor(), NSColor::selectedTextBackgroundColor());
    EXPECT_EQ(NSColor::selectedControlColor(), NSColor::selectedControlColor());
    EXPECT_EQ(NSColor::blackColor(), NSColor::blackColor());
    EXPECT_EQ(NSColor::whiteColor(), NSColor::whiteColor());
    EXPECT_EQ(NSColor::redColor(), NSColor::redColor());
    EXPECT_NE(NSColor::selectedTextBackgroundColor(), NSColor::selectedControlColor());
}

TEST(Color, aColourThatLooksLikeASystemColourIsAnotherObject)
{
    const NSColorRef system = NSColor::selectedTextBackgroundColor();
    const NSColorRef alike =
        NSColor::colorWithCatalogNameFallback(system->catalogName(), system->colorName(), system->fallback());
    EXPECT_NE(alike, system);
    EXPECT_EQ(alike->rgba(), system->rgba());
}

TEST(Color, eachSpaceIsDrawnInRedGreenAndBlue)
{
    EXPECT_EQ(NSColor::colorWithCalibratedRGBA(0.1F, 0.2F, 0.3F, 0.4F)->rgba(), Drawn({0.1F, 0.2F, 0.3F, 0.4F}));
    EXPECT_EQ(NSColor::colorWithDeviceRGBA(0.1F, 0.2F, 0.3F, 0.4F)->rgba(), Drawn({0.1F, 0.2F, 0.3F, 0.4F}));
    EXPECT_EQ(NSColor::colorWithCalibratedWhiteAlpha(0.1F, 0.4F)->rgba(), Drawn({0.1F, 0.1F, 0.1F, 0.4F}));
    EXPECT_EQ(NSColor::colorWithDeviceWhiteAlpha(0.1F, 0.4F)->rgba(), Drawn({0.1F, 0.1F, 0.1F, 0.4F}));
    EXPECT_EQ(NSColor::colorWithDeviceCMYKA(0, 0.5F, 1, 0.5F, 0.25F)->rgba(), Drawn({0.5F, 0.25F, 0, 0.25F}));
    EXPECT_EQ(NSColor::redColor()->rgba(), Drawn({1, 0, 0, 1}));
}

TEST(Color, aNamedColourIsDrawnAsItsFallback)
{
    const NSColorRef inner = NSColor::colorWithCatalogNameFallback("System", "inner", NSColor::redColor());
    const NSColorRef outer = NSColor::colorWithCatalogNameFallback("System", "outer", inner);
    EXPECT_EQ(outer->rgba(), Drawn({1, 0, 0, 1}));
    EXPECT_EQ(NSColor::selectedTextBackgroundColor()->rgba(), Drawn({0.6666667F, 0.6666667F, 0.6666667F, 1}));
}

TEST(Color, aNamedColourNeedsAFallback)
{
    EXPECT_FALSE(NSColor::colorWithCatalogNameFallback("System", "textColor", nullptr));
}

TEST(Color, componentsOutOfBoundsAreDrawnAsTheNearestColour)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(NSColor::colorWithCalibratedRGBA(-1, 7, infinity, noNumber)->rgba(), Drawn({0, 1, 1, 0}));
}

TEST(Color, aNamedColourHasNoComponentsOfItsOwn)
{
    EXPECT_EQ(NSColor::selectedTextBackgroundColor()->componentCount(), 0);
    EXPECT_EQ(NSColor::blackColor()->componentCount(), 2);
    EXPECT_EQ(NSColor::redColor()->componentCount(), 4);
    EXPECT_EQ(NSColor::colorWithDeviceCMYKA(0, 0, 0, 0, 1)->componentCount(), 5);
}
