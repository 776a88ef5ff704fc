#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "KTXOptions.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

bool isOn(const QObject *checkBox)
{
    return state(checkBox) != NSOffState;
}

} // namespace

void KTXLumarooPreferencePane::enableChecked(QObject *sender)
{
    switch (tag(sender)) {
    case KTXDoubleClickActivateTag:
        activateByDoubleClick(sender);
        break;
    case KTXAnimateTag:
        storeAndSync(KTXAnimate, isOn(sender));
        break;
    case KTXHorizontalWrapTag:
        storeAndSync(KTXHWrap, isOn(sender));
        break;
    case KTXVerticalWrapTag:
        storeAndSync(KTXVWrap, isOn(sender));
        break;
    case KTXKeyRepeatTag:
        storeAndSync(KTXAutoRepeat, isOn(sender));
        setEnabled(repeatDelaySlider_, isOn(sender));
        setEnabled(repeatRateSlider_, isOn(sender));
        break;
    default:
        if (isPopUp(sender))
            storeSelectedItem(sender);
    }
}

void KTXLumarooPreferencePane::activateByDoubleClick(QObject *checkBox)
{
    const NSMatrix *matrix = persistentModeMatrix_.get();
    QObject *byDoubleClick = matrix ? matrix->cellWithTag(KTXPersistentByDoubleClickTag) : nullptr;
    QObject *withoutDoubleClick = matrix ? matrix->cellWithTag(KTXPersistentWithoutDoubleClickTag) : nullptr;
    CFPreferencesSetAppValue(KTXActivateDoubleClick, isOn(checkBox), KTXLMAppID);
    if (state(checkBox) == NSOnState) {
        setState(byDoubleClick, NSOnState);
        setState(withoutDoubleClick, NSOffState);
        setEnabled(withoutDoubleClick, false);
        CFPreferencesSetAppValue(KTXPersistentDoubleClick, true, KTXLMAppID);
    } else {
        // The forced choice stays: the user picks again in the matrix.
        setEnabled(withoutDoubleClick, true);
    }
    syncPrefsAndNotifyAgent();
}

void KTXLumarooPreferencePane::storeSelectedItem(QObject *popUp)
{
    for (const KTXChoice &choice : KTXChoices()) {
        if (selectedItemTag(popUp) == choice.tag)
            storeAndSync(choice.key, choice.value);
    }
}

void KTXLumarooPreferencePane::updatePersistentState(QObject *sender)
{
    const auto *matrix = qobject_cast<NSMatrix *>(sender);
    storeAndSync(KTXPersistentDoubleClick, matrix && tag(matrix->selectedCell()) == KTXPersistentByDoubleClickTag);
}
