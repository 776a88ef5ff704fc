#include "agent/life/AgentSettings.h"

#include "KTXHotKeyEntry.h"
#include "KTXModifiers.h"
#include "KTXOptions.h"
#include "KTXSettings.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/NSNumber.h"
#include "platform/foundation/propertylists/PropertyList.h"

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

QVariant asTexts(const QVariant &value)
{
    const auto isText = [](const QVariant &item) { return CFGetTypeID(item) == CFTypeID::String; };
    const QVariantList items = value.toList();
    const bool isList = CFGetTypeID(value) == CFTypeID::Array;
    return isList && std::all_of(items.cbegin(), items.cend(), isText) ? value : QVariant();
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
    case KTXSettingType::Texts:
        return asTexts(value);
    }
    return value;
}

QVariant effectiveValue(const KTXSetting &setting, const QVariant &stored)
{
    const QVariant value = stored.isValid() ? accepted(setting, stored) : QVariant();
    return value.isValid() ? value : setting.defaultValue;
}

/// In the order of a dictionary, which is then filled at its end without a search.
QList<KTXSetting> sortedSettings()
{
    QList<KTXSetting> settings = KTXSettings();
    std::sort(
        settings.begin(), settings.end(), [](const auto &left, const auto &right) { return left.key < right.key; });
    return settings;
}

const QList<KTXSetting> &settingsInOrder()
{
    static const QList<KTXSetting> settings = sortedSettings();
    return settings;
}

/// Null for a key that nobody agreed on.
const KTXSetting *settingOf(const QString &key)
{
    const auto found = std::lower_bound(settingsInOrder().cbegin(), settingsInOrder().cend(), key,
        [](const KTXSetting &setting, const QString &wanted) { return setting.key < wanted; });
    return found != settingsInOrder().cend() && found->key == key ? &*found : nullptr;
}

/// By one walk through both: mostly one key of some forty differs.
QStringList differingKeys(const QVariantMap &left, const QVariantMap &right)
{
    QStringList keys;
    auto one = left.cbegin();
    auto other = right.cbegin();
    while (one != left.cend() || other != right.cend()) {
        const int order = one == left.cend() ? 1 : other == right.cend() ? -1 : one.key().compare(other.key());
        if (order != 0 || !isEqualPropertyList(*one, *other))
            keys.append(order <= 0 ? one.key() : other.key());
        if (order <= 0)
            ++one;
        if (order >= 0)
            ++other;
    }
    return keys;
}

} // namespace

QVariantMap effectiveSettings(const QVariantMap &stored)
{
    QVariantMap effective;
    for (const KTXSetting &setting : settingsInOrder())
        effective.insert(effective.cend(), setting.key, effectiveValue(setting, stored.value(setting.key)));
    return effective;
}

QStringList EffectiveSettings::follow(const QVariantMap &stored)
{
    const QStringList differing = differingKeys(stored_, stored);
    for (const QString &key : differing) {
        if (const KTXSetting *setting = settingOf(key))
            values_.insert(key, effectiveValue(*setting, stored.value(key)));
    }
    stored_ = stored;
    return differing;
}
