#include "agent/AgentSettings.h"

#include "KTXHotKeyEntry.h"
#include "KTXModifiers.h"
#include "KTXOptions.h"
#include "KTXSettings.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/NSNumber.h"

#include <algorithm>

namespace {

QVariant asBoolean(const QVariant &value)
{
    return CFGetTypeID(value) == CFTypeID::Boolean ? value : QVariant();
}

QVariant asModifierMask(const QVariant &value)
{
    const auto mask = integerWithin32Bits(value);
    return mask ? QVariant(qlonglong(quint32(*mask) & KTXAllModifiers)) : QVariant();
}

/// As the setting's slider shows it: no number is the least.
QVariant asNumber(const KTXSetting &setting, const QVariant &value)
{
    const float number = floatValue(value);
    return number > setting.least ? std::min(number, setting.most) : setting.least;
}

QVariant asColor(const QVariant &value)
{
    const bool isColor =
        CFGetTypeID(value) == CFTypeID::Data && NSUnarchiver::unarchiveObjectWithData(value.toByteArray()) != nullptr;
    return isColor ? value : QVariant();
}

/// A stored value in the form of its setting, or no value where it counts as absent.
QVariant accepted(const KTXSetting &setting, const QVariant &value)
{
    switch (setting.type) {
    case KTXSettingType::Presence:
        break;
    case KTXSettingType::Boolean:
        return asBoolean(value);
    case KTXSettingType::Truth:
        return boolValue(value);
    case KTXSettingType::ModifierMask:
        return asModifierMask(value);
    case KTXSettingType::Number:
        return asNumber(setting, value);
    case KTXSettingType::SortOrder:
        return isChoice(setting.key, value) ? value : QVariant();
    case KTXSettingType::Color:
        return asColor(value);
    case KTXSettingType::HotKey:
        return keyCodeOf(value) ? value : QVariant();
    }
    return value;
}

/// In the order of a dictionary, which is then filled at its end without a search.
QList<KTXSetting> sortedSettings()
{
    QList<KTXSetting> settings = KTXSettings();
    std::sort(
        settings.begin(), settings.end(), [](const auto &left, const auto &right) { return left.key < right.key; });
    return settings;
}

} // namespace

QVariantMap effectiveSettings(const QVariantMap &stored)
{
    static const QList<KTXSetting> settings = sortedSettings();
    QVariantMap effective;
    for (const KTXSetting &setting : settings) {
        const auto found = stored.constFind(setting.key);
        const QVariant value = found == stored.cend() ? QVariant() : accepted(setting, *found);
        effective.insert(effective.cend(), setting.key, value.isValid() ? value : setting.defaultValue);
    }
    return effective;
}
