#include "pane/KTXLumarooPreferencePane.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KeyCodeTranslator.h"
#include "pane/AlertOverEditor.h"
#include "pane/SuppressedAlerts.h"
#include "platform/appkit/NSBeep.h"
#include "platform/appkit/textfields/FieldEditor.h"
#include "platform/foundation/preferences/CFPreferences.h"

QString KTXLumarooPreferencePane::modifierGlyphs() const
{
    return ::modifierGlyphs(modifierStateMask_);
}

void KTXLumarooPreferencePane::updateModifierStates(QObject *sender)
{
    const auto modifier = quint32(tag(sender));
    const bool isOn = state(sender) == NSOnState;
    if (modifierStateMask_ == modifier && !isOn) {
        setOnAgainAfterDelayZero(sender);
        warnOfLastModifier();
        return;
    }
    modifierStateMask_ = isOn ? modifierStateMask_ | modifier : modifierStateMask_ ^ modifier;
    setStringValue(modifiersField_, modifierGlyphs());
    storeModifierMask();
}

void KTXLumarooPreferencePane::updateButtonStates(QObject *sender)
{
    const auto *matrix = qobject_cast<NSMatrix *>(sender);
    QAbstractButton *cell = matrix ? matrix->selectedCell() : nullptr;
    const quint32 modifier = cell ? quint32(tag(cell)) : 0;
    if (modifierStateMask_ == modifier) {
        setOnAgainAfterDelayZero(cell);
        setStringValue(modifiersField_, modifierGlyphs());
        warnOfLastModifier();
        return;
    }
    modifierStateMask_ ^= modifier;
    storeModifierMask();
    setStringValue(modifiersField_, modifierGlyphs());
    if (refreshConflictMarkers())
        warnOfConflicts(QStringLiteral(
            "Please change the marked HotKeys in the programs using them before setting them in Lumaroo."));
}

void KTXLumarooPreferencePane::storeModifierMask()
{
    CFPreferencesSetAppValue(KTXModifierMask, qlonglong(modifierStateMask_), KTXLMAppID);
    syncPrefsAndNotifyAgent();
}

void KTXLumarooPreferencePane::setOnAgainAfterDelayZero(QObject *button)
{
    performAfterDelayZero("setState:", [button = QPointer<QObject>(button)] { setState(button, NSOnState); });
}

void KTXLumarooPreferencePane::warnOfLastModifier()
{
    if (isSuppressed(KTXSuppressModAlert)) {
        NSBeep();
        return;
    }
    displayOverEditor(FieldEditor::forWindow(mainView()), [this] {
        displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
            localized(QStringLiteral("At least one modifier must be set")),
            localized(QStringLiteral("At least one modifier must be set to activate Lumaroo. Please select another "
                                     "modifier before unselecting this one.")),
            KTXSuppressModAlert, {});
    });
}

bool KTXLumarooPreferencePane::refreshConflictMarkers()
{
    bool isConflict = false;
    for (int row = 0; row < KTXMovementKeyCount; ++row) {
        const bool isDuplicate = hotKeyIsDuplicateAtIndex(row);
        setHidden(viewWithTag(mainView(), row + KTXMovementKeyCount), !isDuplicate);
        isConflict = isConflict || isDuplicate;
    }
    return isConflict;
}

void KTXLumarooPreferencePane::warnOfConflicts(const QString &information)
{
    if (isSuppressed(KTXsuppressHKeysTaken))
        return;
    displayOverEditor(FieldEditor::forWindow(mainView()), [this, &information] {
        displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
            localized(QStringLiteral("There are conflicts with the marked keys.")), localized(information),
            KTXsuppressHKeysTaken, {});
    });
}
