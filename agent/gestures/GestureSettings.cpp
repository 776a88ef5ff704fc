#include "agent/gestures/GestureSettings.h"

#include "KTXConstants.h"
#include "platform/foundation/colors/AccentColor.h"
#include "platform/foundation/colors/NSArchiver.h"

#include <QHash>

namespace {

/// The same words on both axes where they mean the same.
SortOrder sortOrder(const QString &stored)
{
    static const QHash<QString, SortOrder> orders{
        {QStringLiteral("FirstSelected"), SortOrder::FirstSelected},
        {QStringLiteral("LeftEdge"), SortOrder::NearEdge},
        {QStringLiteral("TopEdge"), SortOrder::NearEdge},
        {QStringLiteral("RightEdge"), SortOrder::FarEdge},
        {QStringLiteral("BottomEdge"), SortOrder::FarEdge},
        {QStringLiteral("Center"), SortOrder::Center},
        {QStringLiteral("LeadingEdge"), SortOrder::LeadingEdge},
    };
    return orders.value(stored, SortOrder::FirstSelected);
}

/// A system colour is the desktop's to say, and only the toolkit would know.
NSColorRef overlayColor(const QByteArray &archive)
{
    const NSColorRef color = NSUnarchiver::unarchiveObjectWithData(archive);
    if (!color || color->colorSpace() != NSColorSpace::Catalog)
        return color;
    const auto part = [](int shift) { return float(accentColor >> shift & 0xff) / 255; };
    return NSColor::colorWithCalibratedRGBA(part(16), part(8), part(0), color->rgba()[3]);
}

} // namespace

GestureSettings gestureSettings(const QVariantMap &settings)
{
    const auto isOn = [&settings](const QString &key) { return settings.value(key).toBool(); };
    return {
        .gesture = {.onlyByDoublePress = isOn(KTXActivateDoubleClick),
            .persistentByDoublePress = isOn(KTXPersistentDoubleClick),
            .toggles = isOn(KTXShouldToggle)},
        .selection = {.horizontalOrder = sortOrder(settings.value(KTXHSort).toString()),
            .verticalOrder = sortOrder(settings.value(KTXVSort).toString()),
            .wrapsHorizontally = isOn(KTXHWrap),
            .wrapsVertically = isOn(KTXVWrap),
            .cyclesAscending = isOn(KTXCycleAscending)},
        .windows = windowChoice(settings),
        .overlay = {.color = overlayColor(settings.value(KTXOverlayColor).toByteArray()), .animates = isOn(KTXAnimate)},
        .beeps = isOn(KTXShouldBeep),
        .labelsAtOnce = isOn(KTXVisualMode),
    };
}
