#include "platform/foundation/colors/NSColor.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

const QString systemCatalog = QStringLiteral("System");

// The grey that archives give for it: kept from the earliest systems, whatever the colour looks like now.
constexpr float selectedTextBackgroundWhite = 0.6666667F;

float withinUnit(float component)
{
    return std::isnan(component) ? 0 : std::clamp(component, 0.0F, 1.0F);
}

std::array<float, 4> drawable(float red, float green, float blue, float alpha)
{
    return {withinUnit(red), withinUnit(green), withinUnit(blue), withinUnit(alpha)};
}

} // namespace

std::shared_ptr<NSColor> NSColor::make(NSColorSpace colorSpace, const std::array<float, 5> &components)
{
    const std::shared_ptr<NSColor> color(new NSColor);
    color->colorSpace_ = colorSpace;
    color->components_ = components;
    return color;
}

std::shared_ptr<NSColor> NSColor::makeNamed(const QString &catalog, const QString &name, NSColorRef fallback)
{
    const auto color = make(NSColorSpace::Catalog, {});
    color->catalog_ = catalog;
    color->name_ = name;
    color->fallback_ = std::move(fallback);
    return color;
}

NSColorRef NSColor::colorWithCalibratedRGBA(float red, float green, float blue, float alpha)
{
    return make(NSColorSpace::CalibratedRGB, {red, green, blue, alpha});
}

NSColorRef NSColor::colorWithDeviceRGBA(float red, float green, float blue, float alpha)
{
    return make(NSColorSpace::DeviceRGB, {red, green, blue, alpha});
}

NSColorRef NSColor::colorWithCalibratedWhiteAlpha(float white, float alpha)
{
    return make(NSColorSpace::CalibratedWhite, {white, alpha});
}

NSColorRef NSColor::colorWithDeviceWhiteAlpha(float white, float alpha)
{
    return make(NSColorSpace::DeviceWhite, {white, alpha});
}

NSColorRef NSColor::colorWithDeviceCMYKA(float cyan, float magenta, float yellow, float black, float alpha)
{
    return make(NSColorSpace::DeviceCMYK, {cyan, magenta, yellow, black, alpha});
}

NSColorRef NSColor::colorWithCatalogNameFallback(const QString &catalog, const QString &name, NSColorRef fallback)
{
    if (!fallback)
        return nullptr;
    return makeNamed(catalog, name, std::move(fallback));
}

NSColorRef NSColor::selectedTextBackgroundColor()
{
    static const NSColorRef color = makeNamed(systemCatalog, QStringLiteral("selectedTextBackgroundColor"),
        colorWithCalibratedWhiteAlpha(selectedTextBackgroundWhite, 1));
    return color;
}

NSColorRef NSColor::selectedControlColor()
{
    static const NSColorRef color =
        makeNamed(systemCatalog, QStringLiteral("selectedControlColor"), colorWithCalibratedWhiteAlpha(1, 1));
    return color;
}

NSColorRef NSColor::blackColor()
{
    static const NSColorRef color = colorWithCalibratedWhiteAlpha(0, 1);
    return color;
}

NSColorRef NSColor::whiteColor()
{
    static const NSColorRef color = colorWithCalibratedWhiteAlpha(1, 1);
    return color;
}

NSColorRef NSColor::redColor()
{
    static const NSColorRef color = colorWithCalibratedRGBA(1, 0, 0, 1);
    return color;
}

int NSColor::componentCount() const
{
    switch (colorSpace_) {
    case NSColorSpace::CalibratedRGB:
    case NSColorSpace::DeviceRGB:
        return 4;
    case NSColorSpace::CalibratedWhite:
    case NSColorSpace::DeviceWhite:
        return 2;
    case NSColorSpace::DeviceCMYK:
        return 5;
    case NSColorSpace::Catalog:
        break;
    }
    return 0;
}

std::array<float, 4> NSColor::rgba() const
{
    const auto [first, second, third, fourth, fifth] = components_;
    switch (colorSpace_) {
    case NSColorSpace::CalibratedRGB:
    case NSColorSpace::DeviceRGB:
        return drawable(first, second, third, fourth);
    case NSColorSpace::CalibratedWhite:
    case NSColorSpace::DeviceWhite:
        return drawable(first, first, first, second);
    case NSColorSpace::DeviceCMYK: {
        const float light = 1 - withinUnit(fourth);
        return drawable(
            (1 - withinUnit(first)) * light, (1 - withinUnit(second)) * light, (1 - withinUnit(third)) * light, fifth);
    }
    case NSColorSpace::Catalog:
        break;
    }
    return fallback_->rgba();
}
