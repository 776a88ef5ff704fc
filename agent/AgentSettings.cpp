#include "agent/AgentSettings.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/NSNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

QVariant asBoolean(const QVariant &value)
{
    return CFGetTypeID(value) == CFTypeID::Boolean ? value : QVariant();
}

/// A real counts by its whole part, as it does for the pane.
QVariant asModifierMask(const QVariant &value)
{
    constexpr double least = std::numeric_limits<qint32>::min();
    constexpr double most = std::numeric_limits<qint32>::max();
    const bool isNumber = CFGetTypeID(value) == CFTypeID::Number;
    const double number = isNumber ? value.toDouble() : std::numeric_limits<double>::quiet_NaN();
    return number > least - 1 && number < most + 1 ? QVariant(qlonglong(number) & KTXAllModifiers) : QVariant();
}

QVariant asFloat(const QVariant &value)
{
    const bool isNumber = CFGetTypeID(value) == CFTypeID::Number && std::isfinite(floatValue(value));
    return isNumber ? QVariant(floatValue(value)) : QVariant();
}

QVariant asText(const QVariant &value)
{
    return CFGetTypeID(value) == CFTypeID::String ? value : QVariant();
}

QVariant asData(const QVariant &value)
{
    return CFGetTypeID(value) == CFTypeID::Data ? value : QVariant();
}

QVariant asHotKey(const QVariant &value)
{
    const bool isHotKey = CFGetTypeID(value) == CFTypeID::Dictionary && value.toMap().contains(KTXKeycode);
    return isHotKey ? value : QVariant();
}

/// The value in the form of its type, or no value.
QVariant accepted(SettingType type, const QVariant &value)
{
    switch (type) {
    case SettingType::Boolean:
        return asBoolean(value);
    case SettingType::ModifierMask:
        return asModifierMask(value);
    case SettingType::Float:
        return asFloat(value);
    case SettingType::Text:
        return asText(value);
    case SettingType::Data:
        return asData(value);
    case SettingType::HotKey:
        return asHotKey(value);
    case SettingType::Anything:
        break;
    }
    return value;
}

QList<AgentSetting> actionKeySettings()
{
    QList<AgentSetting> settings;
    for (const KTXActionKey &action : KTXActionKeys()) {
        const QVariantMap key{{KTXKeycode, QString::number(action.defaultKeyCode)}};
        settings.append({action.preferenceName, SettingType::HotKey, key});
    }
    return settings;
}

QList<AgentSetting> allSettings()
{
    using enum SettingType;
    const QString firstSelected = QStringLiteral("FirstSelected");
    const QList<AgentSetting> beforeTheKeys{
        {KTXShouldDebug, Boolean, false},
        {KTXFirstLaunch, Anything, {}},
        {KTXModifierMask, ModifierMask, qlonglong(DEFAULT_MODIFIER_MASK)},
        {KTXSuppressHKeyTaken, Boolean, false},
        {KTXsuppressHKeysTaken, Boolean, false},
        {KTXSuppressModAlert, Boolean, false},
        {KTXOverlayColor, Data, {}},
    };
    const QList<AgentSetting> afterTheKeys{
        {SUEnableAutomaticChecks, Boolean, false},
        {KTXAutoRepeat, Boolean, true},
        {KTXRepeatRate, Float, 1.0F},
        {KTXInitialDelay, Float, 0.0F},
        {KTXAnimate, Boolean, false},
        {KTXHWrap, Boolean, true},
        {KTXVWrap, Boolean, true},
        {KTXHSort, Text, firstSelected},
        {KTXVSort, Text, firstSelected},
        // What the window shows for these until the user chooses.
        {KTXCycleAscending, Boolean, false},
        {KTXActivateDoubleClick, Boolean, false},
        {KTXPersistentDoubleClick, Boolean, false},
        // The agent's own.
        {KTXsuppressMissionControl, Boolean, false},
        {KTXShowHidden, Boolean, false},
        {KTXVisualMode, Boolean, false},
        {KTXShouldToggle, Boolean, false},
        {KTXShouldBeep, Boolean, false},
        {KTXTutorialDone, Boolean, false},
    };
    return beforeTheKeys + actionKeySettings() + afterTheKeys;
}

/// In the order of a dictionary, which is then filled at its end without a search.
QList<AgentSetting> sortedSettings()
{
    QList<AgentSetting> settings = agentSettings();
    std::sort(
        settings.begin(), settings.end(), [](const auto &left, const auto &right) { return left.key < right.key; });
    return settings;
}

} // namespace

const QList<AgentSetting> &agentSettings()
{
    static const QList<AgentSetting> settings = allSettings();
    return settings;
}

QVariantMap effectiveSettings(const QVariantMap &stored)
{
    static const QList<AgentSetting> settings = sortedSettings();
    QVariantMap effective;
    for (const AgentSetting &setting : settings) {
        const auto found = stored.constFind(setting.key);
        const QVariant value = found == stored.cend() ? QVariant() : accepted(setting.type, *found);
        effective.insert(effective.cend(), setting.key, value.isValid() ? value : setting.defaultValue);
    }
    return effective;
}
