#include "KTXSettings.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"
#include "KTXModifiers.h"
#include "KTXOptions.h"
#include "platform/foundation/colors/NSArchiver.h"

#include <QHash>

namespace {

QList<KTXSetting> hotKeySettings()
{
    QList<KTXSetting> settings;
    for (const KTXActionKey &action : KTXActionKeys())
        settings.append({action.preferenceName, KTXSettingType::HotKey, hotKeyEntry(action.defaultKeyCode)});
    return settings;
}

QList<KTXSetting> allSettings()
{
    using enum KTXSettingType;
    const QByteArray systemColor = NSArchiver::archivedDataWithRootObject(NSColor::selectedTextBackgroundColor());
    const QList<KTXSetting> beforeTheKeys{
        {KTXShouldDebug, Boolean, false},
        {KTXFirstLaunch, Presence, {}},
        {KTXModifierMask, ModifierMask, qlonglong(DEFAULT_MODIFIER_MASK)},
        {KTXSuppressHKeyTaken, Boolean, false},
        {KTXsuppressHKeysTaken, Boolean, false},
        {KTXSuppressModAlert, Boolean, false},
        {KTXOverlayColor, Color, systemColor},
    };
    const QList<KTXSetting> afterTheKeys{
        {SUEnableAutomaticChecks, Truth, false},
        {KTXAutoRepeat, Truth, true},
        {KTXRepeatRate, Number, 1.0F, 0, 1},
        {KTXInitialDelay, Number, 0.0F, 0, 2},
        {KTXAnimate, Truth, false},
        {KTXHWrap, Boolean, true},
        {KTXVWrap, Boolean, true},
        {KTXHSort, SortOrder, KTXFirstSelected},
        {KTXVSort, SortOrder, KTXFirstSelected},
        // What the interface file shows for these where nothing is stored.
        {KTXCycleAscending, Truth, false},
        {KTXActivateDoubleClick, Truth, false},
        {KTXPersistentDoubleClick, Truth, true},
        // The agent's own.
        {KTXsuppressMissionControl, Boolean, false},
        {KTXShowHidden, Boolean, false},
        {KTXVisualMode, Boolean, false},
        {KTXShouldToggle, Boolean, false},
        {KTXShouldBeep, Boolean, false},
        {KTXTutorialDone, Boolean, false},
        {KTXExcludedApplications, Texts, QVariantList()},
        {KTXShowInTray, Boolean, true},
        {KTXWelcomeShown, Boolean, false},
    };
    return beforeTheKeys + hotKeySettings() + afterTheKeys;
}

QHash<QString, QVariant> defaultValues()
{
    QHash<QString, QVariant> values;
    for (const KTXSetting &setting : KTXSettings())
        values.insert(setting.key, setting.defaultValue);
    return values;
}

} // namespace

const QList<KTXSetting> &KTXSettings()
{
    static const QList<KTXSetting> settings = allSettings();
    return settings;
}

QVariant KTXDefaultValue(const QString &key)
{
    static const QHash<QString, QVariant> values = defaultValues();
    return values.value(key);
}
