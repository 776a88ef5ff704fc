#include "pane/KTXLumarooPreferencePane.h"

#include "KTXLoginEntry.h"
#include "pane/PaneDesktop.h"

// What this desktop adds to the pane: what really comes of the keys, and the start at login.

void KTXLumarooPreferencePane::followDesktop()
{
    desktop_ = new PaneDesktop(mainView(), bundle(), this);
}

/// As by the check boxes, in one change: the agent is to know no modifiers that nobody chose.
void KTXLumarooPreferencePane::useFreeModifiers()
{
    if (!desktop_ || desktop_->freeModifiers() == 0)
        return;
    modifierStateMask_ = desktop_->freeModifiers();
    storeModifierMask();
    readModifiers();
}

void KTXLumarooPreferencePane::toggleStartAtLogin(QObject *sender)
{
    if (!desktop_ || desktop_->setStartsAtLogin(state(sender) == NSOnState))
        return;
    displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
        localized(QStringLiteral("The start at login could not be changed.")),
        localized(QStringLiteral("Lumaroo cannot write the file “%1”. Check that you may change it, and try again."))
            .arg(loginEntryPath()),
        {}, {});
}
