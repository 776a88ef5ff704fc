#include "KTXHotKeyEntry.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/Description.h"

QVariantMap hotKeyEntry(quint16 keyCode)
{
    return {{KTXKeycode, QString::number(keyCode)}};
}

std::optional<int> keyCodeOf(const QVariant &entry)
{
    if (CFGetTypeID(entry) != CFTypeID::Dictionary)
        return {};
    const QVariantMap hotKey = entry.toMap();
    const auto keyCode = hotKey.constFind(KTXKeycode);
    return keyCode == hotKey.cend() ? std::nullopt : std::optional(intValue(*keyCode));
}
