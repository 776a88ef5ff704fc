#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"
#include "KTXModifiers.h"
#include "KTXOptions.h"
#include "KTXSettings.h"
#include "KeyCodeTranslator.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/NSNumber.h"

namespace {

bool isStored(const QString &key)
{
    return CFPreferencesCopyAppValue(key, KTXLMAppID).isValid();
}

void addDefault(QVariantMap &domain, const QString &key)
{
    if (!isStored(key))
        domain.insert(key, KTXDefaultValue(key));
}

QVariant storeDefault(const QString &key)
{
    const QVariant byDefault = KTXDefaultValue(key);
    CFPreferencesSetAppValue(key, byDefault, KTXLMAppID);
    return byDefault;
}

QVariant sortOrder(const QString &key)
{
    const QVariant stored = CFPreferencesCopyAppValue(key, KTXLMAppID);
    return CFGetTypeID(stored) == CFTypeID::String ? stored : storeDefault(key);
}

bool isWrapping(const QString &key)
{
    bool isValid = false;
    const bool stored = CFPreferencesGetAppBooleanValue(key, KTXLMAppID, &isValid);
    return isValid ? stored : storeDefault(key).toBool();
}

void storeModifierMask(quint32 mask)
{
    CFPreferencesSetAppValue(KTXModifierMask, qlonglong(mask), KTXLMAppID);
}

quint32 modifierMask()
{
    bool isValid = false;
    quint32 mask = quint32(CFPreferencesGetAppIntegerValue(KTXModifierMask, KTXLMAppID, &isValid));
    if (!isValid)
        mask = storeDefault(KTXModifierMask).toUInt();
    if (mask & ~KTXAllModifiers) {
        mask &= KTXAllModifiers;
        storeModifierMask(mask);
    }
    return mask;
}

} // namespace

void KTXLumarooPreferencePane::readUserPrefs()
{
    readKeyRepeatAndAnimation();
    readSortOrdersAndWrapping();
    readModifiers();
    readHotKeys();
    readOverlayColor();
    syncPrefsAndNotifyAgent();
}

void KTXLumarooPreferencePane::readKeyRepeatAndAnimation()
{
    QVariantMap domain = NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID);
    addDefault(domain, KTXAnimate);
    setState(animateButton_, boolValue(domain.value(KTXAnimate)));
    addDefault(domain, KTXAutoRepeat);
    const bool isRepeating = boolValue(domain.value(KTXAutoRepeat));
    setState(keyRepeatButton_, isRepeating);
    addDefault(domain, KTXRepeatRate);
    setFloatValue(repeatRateSlider_, floatValue(domain.value(KTXRepeatRate)));
    addDefault(domain, KTXInitialDelay);
    setFloatValue(repeatDelaySlider_, floatValue(domain.value(KTXInitialDelay)));
    setEnabled(repeatDelaySlider_, isRepeating);
    setEnabled(repeatRateSlider_, isRepeating);
    setEnabled(delayTextField_, isRepeating);
    setEnabled(repeatTextField_, isRepeating);
    NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(domain, KTXLMAppID);
    CFPreferencesAppSynchronize(KTXLMAppID);
}

void KTXLumarooPreferencePane::readSortOrdersAndWrapping()
{
    selectItemWithTag(HorizontalPopup_, itemToSelect(KTXHSort, sortOrder(KTXHSort)));
    selectItemWithTag(VerticalPopup_, itemToSelect(KTXVSort, sortOrder(KTXVSort)));
    setState(enableHorizontalWrapButton_, isWrapping(KTXHWrap));
    setState(enableVerticalWrapButton_, isWrapping(KTXVWrap));
}

void KTXLumarooPreferencePane::readModifiers()
{
    modifierStateMask_ = modifierMask();
    const auto isSet = [this](quint32 bit) { return (modifierStateMask_ & bit) ? NSOnState : NSOffState; };
    setState(shiftCheckBox_, isSet(KTXShiftModifier));
    setState(controlCheckBox_, isSet(KTXControlModifier));
    setState(optionCheckBox_, isSet(KTXOptionModifier));
    setState(commandCheckBox_, isSet(KTXCommandModifier));
    setStringValue(modifiersField_, modifierGlyphs());
}

void KTXLumarooPreferencePane::readHotKeys()
{
    // One table under two names from here on: what is stored or captured replaces the defaults for the rest of the
    // pane's life.
    keyCodes_ = defaultKeyCodes_;
    const QWidgetList fields = viewsWithTagsBelow(mainView(), int(keyCodePrefNames_.size()));
    for (int row = 0; row < keyCodePrefNames_.size(); ++row) {
        const auto stored = keyCodeOf(CFPreferencesCopyAppValue(keyCodePrefNames_.at(row), KTXLMAppID));
        if (stored)
            keyCodes_->replace(row, *stored);
        const QString name = KeyCodeTranslator::stringForKeyCodeWithModifierFlags(keyCodes_->at(row), 0);
        setStringValue(fields.at(row), name);
    }
}

void KTXLumarooPreferencePane::readOverlayColor()
{
    const QVariant archive = CFPreferencesCopyAppValue(KTXOverlayColor, KTXLMAppID);
    if (!archive.isValid()) {
        storeDefault(KTXOverlayColor);
        return;
    }
    const bool isData = CFGetTypeID(archive) == CFTypeID::Data;
    if (const NSColorRef color = NSUnarchiver::unarchiveObjectWithData(isData ? archive.toByteArray() : QByteArray()))
        setColor(overlayColorWell_, color);
}

void KTXLumarooPreferencePane::syncPrefsAndNotifyAgent()
{
    CFPreferencesAppSynchronize(KTXLMAppID);
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), KTXLMPrefsChanged, KTXLMAppID, {}, true);
}

void KTXLumarooPreferencePane::storeAndSync(const QString &key, const QVariant &value)
{
    CFPreferencesSetAppValue(key, value, KTXLMAppID);
    syncPrefsAndNotifyAgent();
}

void KTXLumarooPreferencePane::updatePreferences(const NSNotification &)
{
    readUserPrefs();
}
