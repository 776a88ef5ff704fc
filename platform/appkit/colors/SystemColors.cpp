#include "platform/appkit/colors/SystemColors.h"

#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <optional>

namespace {

constexpr int deepestFallback = 16;

std::optional<QPalette::ColorRole> roleOfSystemColor(const QString &name)
{
    static const QHash<QString, QPalette::ColorRole> roles{
        {QStringLiteral("selectedTextBackgroundColor"), QPalette::Highlight},
        {QStringLiteral("selectedTextColor"), QPalette::HighlightedText},
        {QStringLiteral("selectedControlColor"), QPalette::Highlight},
        {QStringLiteral("selectedControlTextColor"), QPalette::HighlightedText},
        {QStringLiteral("alternateSelectedControlColor"), QPalette::Highlight},
        {QStringLiteral("alternateSelectedControlTextColor"), QPalette::HighlightedText},
        {QStringLiteral("selectedMenuItemColor"), QPalette::Highlight},
        {QStringLiteral("selectedMenuItemTextColor"), QPalette::HighlightedText},
        {QStringLiteral("keyboardFocusIndicatorColor"), QPalette::Highlight},
        {QStringLiteral("textColor"), QPalette::Text},
        {QStringLiteral("textBackgroundColor"), QPalette::Base},
        {QStringLiteral("controlColor"), QPalette::Button},
        {QStringLiteral("controlTextColor"), QPalette::ButtonText},
        {QStringLiteral("controlBackgroundColor"), QPalette::Base},
        {QStringLiteral("controlHighlightColor"), QPalette::Midlight},
        {QStringLiteral("controlLightHighlightColor"), QPalette::Light},
        {QStringLiteral("controlShadowColor"), QPalette::Mid},
        {QStringLiteral("controlDarkShadowColor"), QPalette::Dark},
        {QStringLiteral("windowBackgroundColor"), QPalette::Window},
        {QStringLiteral("windowFrameTextColor"), QPalette::WindowText},
        {QStringLiteral("labelColor"), QPalette::WindowText},
        {QStringLiteral("linkColor"), QPalette::Link},
        {QStringLiteral("gridColor"), QPalette::Mid},
        {QStringLiteral("highlightColor"), QPalette::Light},
        {QStringLiteral("shadowColor"), QPalette::Shadow},
    };
    const auto role = roles.constFind(name);
    return role == roles.cend() ? std::nullopt : std::optional(*role);
}

std::optional<QColor> systemColor(const NSColor &color)
{
    if (color.catalogName() != QLatin1StringView("System"))
        return std::nullopt;
    const QPalette palette = QGuiApplication::palette();
    if (color.colorName() == QLatin1StringView("disabledControlTextColor"))
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    const auto role = roleOfSystemColor(color.colorName());
    return role ? std::optional(palette.color(QPalette::Active, *role)) : std::nullopt;
}

QColor plainColor(const NSColor &color)
{
    const auto inRange = [](float component) { return component > 0 ? qMin(component, 1.0f) : 0.0f; };
    const auto [red, green, blue, alpha] = color.rgba();
    return QColor::fromRgbF(inRange(red), inRange(green), inRange(blue), inRange(alpha));
}

} // namespace

QColor liveColor(const NSColorRef &color)
{
    NSColorRef current = color;
    // A damaged archive may nest catalogue colours in one another.
    for (int depth = 0; current && depth < deepestFallback; ++depth) {
        if (current->colorSpace() != NSColorSpace::Catalog)
            return plainColor(*current);
        if (const std::optional<QColor> live = systemColor(*current))
            return *live;
        current = current->fallback();
    }
    return Qt::black;
}

NSColorRef calibratedColor(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return NSColor::colorWithCalibratedRGBA(
        float(rgb.redF()), float(rgb.greenF()), float(rgb.blueF()), float(rgb.alphaF()));
}
