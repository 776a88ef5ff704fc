#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "KeyCodeTranslator.h"
#include "platform/foundation/CFPreferences.h"

QString KTXLumarooPreferencePane::modifierGlyphs() const
{
    return ::modifierGlyphs(modifierStateMask_);
}

void KTXLumarooPreferencePane::updateModifierStates(QObject *sender) { }

void KTXLumarooPreferencePane::updateButtonStates(QObject *sender)
{
    const auto *matrix = qobject_cast<NSMatrix *>(sender);
    const QAbstractButton *cell = matrix ? matrix->selectedCell() : nullptr;
    const quint32 modifier = cell ? quint32(tag(cell)) : 0;
    if (modifierStateMask_ == modifier)
        return;
    modifierStateMask_ ^= modifier;
    CFPreferencesSetAppValue(KTXModifierMask, qlonglong(modifierStateMask_), KTXLMAppID);
    syncPrefsAndNotifyAgent();
    setStringValue(modifiersField_, modifierGlyphs());
}
