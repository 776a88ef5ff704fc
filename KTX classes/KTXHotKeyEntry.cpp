#include "KTXHotKeyEntry.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/Description.h"

QVariantMap hotKeyEntry(VirtualKeyCode keyCode)
{
    return {{KTXKeycode, QString::number(keyCode.number())}};
}

std::optional<VirtualKeyCode> keyCodeOf(const QVariant &entry)
{
    if (CFGetTypeID(entry) != CFTypeID::Dictionary)
        return {};
    const QVariantMap hotKey = entry.toMap();
    const auto keyCode = hotKey.constFind(KTXKeycode);
    return keyCode == hotKey.cend() ? std::nullopt : std::optional(VirtualKeyCode(quint32(intValue(*keyCode))));
}
