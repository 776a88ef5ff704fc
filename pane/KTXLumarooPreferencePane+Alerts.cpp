#include "pane/KTXLumarooPreferencePane.h"

#include "platform/appkit/NSAlert.h"
#include "platform/foundation/NSBundle.h"

bool KTXLumarooPreferencePane::userQuitsDespiteConflicts()
{
    NSAlert alert;
    alert.setMessageText(localized(QStringLiteral("Quit while key conflicts exist?")));
    alert.setInformativeText(localized(QStringLiteral("The marked keys have multiple actions assigned to them. "
                                                      "Quitting may cause unpredictable Lumaroo behavior.")));
    alert.addButtonWithTitle(localized(QStringLiteral("Quit")));
    alert.setKeyEquivalent(0, QStringLiteral("q"));
    alert.addButtonWithTitle(localized(QStringLiteral("Cancel")));
    alert.setShowsHelp(true);
    alert.setHelpAnchor(QStringLiteral("closeDialog"), bundle());
    alert.setIconFile(bundle()->resourcePath() + QStringLiteral("/Lumaroo.icns"));
    return alert.runModal() == NSAlertFirstButtonReturn;
}

void KTXLumarooPreferencePane::displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
    const QString &message, const QString &information, const QString &suppressionPrefValue, const QString &helpAnchor)
{
}

void KTXLumarooPreferencePane::alertDidEndReturnCodeContextInfo(
    NSAlert *alert, int returnCode, const QString &contextInfo)
{
}
