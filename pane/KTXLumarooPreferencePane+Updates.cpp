#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/NSNumber.h"
#include "updater/SUUpdater.h"

namespace {

constexpr double oneDay = 86400;

const QString betaMarker = QStringLiteral("_beta");

QString addressOfReleases(QString address)
{
    return address.remove(betaMarker);
}

} // namespace

void KTXLumarooPreferencePane::setUpUpdater()
{
    const QVariant checks = CFPreferencesCopyAppValue(SUEnableAutomaticChecks, KTXLMAppID);
    updater()->setAutomaticallyChecksForUpdates(boolValue(checks));
    // Releases alone are for everybody, also where the bundle names what comes before them.
    updater()->setFeedURL(addressOfReleases(updater()->feedURL()));
    updater()->setUpdateCheckInterval(oneDay);
    updater()->resetUpdateCycle();
}

void KTXLumarooPreferencePane::checkForUpdates(QObject *)
{
    updater()->checkForUpdates(this);
}

void KTXLumarooPreferencePane::autoUpdateChecked(QObject *sender)
{
    const bool checks = state(sender) == NSOnState;
    updater()->setAutomaticallyChecksForUpdates(checks);
    storeAndSync(SUEnableAutomaticChecks, checks);
}

/// It reaches the disk with the next change of another setting.
void KTXLumarooPreferencePane::hideBetaNotes(QObject *sender)
{
    const int build = intValue(infoDictionary_.value(QStringLiteral("CFBundleVersion")));
    CFPreferencesSetAppValue(KTXHideBetaNotes + QString::number(build), state(sender) == NSOnState, KTXLMAppID);
}

SUUpdater *KTXLumarooPreferencePane::updater() const
{
    return SUUpdater::updaterForBundle(bundle());
}
