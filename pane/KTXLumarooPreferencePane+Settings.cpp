#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "KTXModifiers.h"
#include "KeyCodeTranslator.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/NSNumber.h"

namespace {

constexpr int noItem = -1;

bool isStored(const QString &key)
{
    return CFPreferencesCopyAppValue(key, KTXLMAppID).isValid();
}

void addDefault(QVariantMap &domain, const QString &key, const QVariant &value)
{
    if (!isStored(key))
        domain.insert(key, value);
}

QString sortOrder(const QString &key)
{
    const QVariant stored = CFPreferencesCopyAppValue(key, KTXLMAppID);
    if (CFGetTypeID(stored) == CFTypeID::String)
        return stored.toString();
    const QString byDefault = QStringLiteral("FirstSelected");
    CFPreferencesSetAppValue(key, byDefault, KTXLMAppID);
    return byDefault;
}

bool isWrapping(const QString &key)
{
    bool isValid = false;
    const bool stored = CFPreferencesGetAppBooleanValue(key, KTXLMAppID, &isValid);
    if (isValid)
        return stored;
    CFPreferencesSetAppValue(key, true, KTXLMAppID);
    return true;
}

void storeModifierMask(quint32 mask)
{
    CFPreferencesSetAppValue(KTXModifierMask, qlonglong(mask), KTXLMAppID);
}

quint32 modifierMask()
{
    bool isValid = false;
    quint32 mask = quint32(CFPreferencesGetAppIntegerValue(KTXModifierMask, KTXLMAppID, &isValid));
    if (!isValid) {
        mask = DEFAULT_MODIFIER_MASK;
        storeModifierMask(mask);
    }
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
    addDefault(domain, KTXAnimate, false);
    setState(animateButton_, boolValue(domain.value(KTXAnimate)));
    addDefault(domain, KTXAutoRepeat, true);
    const bool isRepeating = boolValue(domain.value(KTXAutoRepeat));
    setState(keyRepeatButton_, isRepeating);
    addDefault(domain, KTXRepeatRate, 1.0f);
    setFloatValue(repeatRateSlider_, floatValue(domain.value(KTXRepeatRate)));
    addDefault(domain, KTXInitialDelay, 0.0f);
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
    static const QHash<QString, int> horizontalTags{
        {QStringLiteral("RightEdge"), 52}, {QStringLiteral("LeftEdge"), 53}, {QStringLiteral("FirstSelected"), 54}};
    static const QHash<QString, int> verticalTags{
        {QStringLiteral("BottomEdge"), 56}, {QStringLiteral("TopEdge"), 55}, {QStringLiteral("FirstSelected"), 57}};
    selectItemWithTag(HorizontalPopup_, horizontalTags.value(sortOrder(KTXHSort), noItem));
    selectItemWithTag(VerticalPopup_, verticalTags.value(sortOrder(KTXVSort), noItem));
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
        const QVariant entry = CFPreferencesCopyAppValue(keyCodePrefNames_.at(row), KTXLMAppID);
        const QVariantMap hotKey = CFGetTypeID(entry) == CFTypeID::Dictionary ? entry.toMap() : QVariantMap();
        if (hotKey.contains(KTXKeycode))
            keyCodes_->replace(row, intValue(hotKey.value(KTXKeycode)));
        const QString name = KeyCodeTranslator::stringForKeyCodeWithModifierFlags(quint16(keyCodes_->at(row)), 0);
        setStringValue(fields.at(row), name);
    }
}

void KTXLumarooPreferencePane::readOverlayColor()
{
    const QVariant archive = CFPreferencesCopyAppValue(KTXOverlayColor, KTXLMAppID);
    if (!archive.isValid()) {
        const QByteArray byDefault = NSArchiver::archivedDataWithRootObject(NSColor::selectedTextBackgroundColor());
        CFPreferencesSetAppValue(KTXOverlayColor, byDefault, KTXLMAppID);
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
