#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "pane/SuppressedAlerts.h"
#include "platform/appkit/alerts/NSAlert.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

QString iconFile(const NSBundle *bundle)
{
    return bundle->resourcePath() + QStringLiteral("/Lumaroo.icns");
}

} // namespace

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
    alert.setIconFile(iconFile(bundle()));
    return alert.runModal() == NSAlertFirstButtonReturn;
}

void KTXLumarooPreferencePane::displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
    const QString &message, const QString &information, const QString &suppressionPrefValue, const QString &helpAnchor)
{
    const bool canBeSuppressed = !suppressionPrefValue.isEmpty();
    if (canBeSuppressed && isSuppressed(suppressionPrefValue))
        return;
    auto alert = std::make_unique<NSAlert>();
    alert->setInformativeText(information);
    alert->setMessageText(message);
    alert->setShowsSuppressionButton(canBeSuppressed);
    alert->setIconFile(iconFile(bundle()));
    if (!helpAnchor.isEmpty()) {
        alert->setShowsHelp(true);
        alert->setHelpAnchor(helpAnchor, bundle());
    }
    const auto didEnd = [this](NSAlert *ended, int returnCode, const QString &contextInfo) {
        alertDidEndReturnCodeContextInfo(ended, returnCode, contextInfo);
    };
    NSAlert::beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(
        std::move(alert), mainView(), this, didEnd, suppressionPrefValue);
}

void KTXLumarooPreferencePane::alertDidEndReturnCodeContextInfo(NSAlert *alert, int, const QString &contextInfo)
{
    if (alert->suppressionButtonState() != NSOnState)
        return;
    CFPreferencesSetAppValue(contextInfo, true, KTXLMAppID);
    syncPrefsAndNotifyAgent();
}
