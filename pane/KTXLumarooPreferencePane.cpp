#include "pane/KTXLumarooPreferencePane.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "crashreporter/QBCheckForCrash.h"
#include "pane/HelpBook.h"
#include "pane/TabIndexes.h"
#include "platform/appkit/colors/NSColorPanel.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/NSNumber.h"
#include "platform/foundation/system/NSLog.h"

#include <QTimer>

namespace {

constexpr double gapToColorPanel = 10;

} // namespace

void KTXLumarooPreferencePane::initialize()
{
    logIfDebugging(QStringLiteral("initialize"));
}

bool KTXLumarooPreferencePane::initWithBundle(NSBundle *bundle)
{
    logIfDebugging(QStringLiteral("initWithBundle"));
    if (!NSPreferencePane::initWithBundle(bundle))
        return false;
    QBCrashReporterCheckForCrash();
    infoDictionary_ = bundle->infoDictionary();
    registerObservers();
    buildKeyTables();
    buildHelpAnchors();
    setUpUpdater();
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), KTXLMPrefPaneLaunched, KTXLMAppID, {}, true);
    return true;
}

void KTXLumarooPreferencePane::registerObservers()
{
    struct Observation
    {
        QString name;
        QString object;
        NotificationHandler handler;
    };
    const QList<Observation> observations{
        {KTXPrefPaneToTab, {}, [this](const NSNotification &notification) { switchToTab(notification); }},
        {KTXLMAgentLaunched, {}, [this](const NSNotification &notification) { setAgentVisualsOn(notification); }},
        {KTXLMPrefPaneLaunchAgent, {}, [this](const NSNotification &) { startAgent(); }},
        {KTXLMAgentIsTerminating, {}, [this](const NSNotification &) { setAgentVisualsOff(); }},
        {KTXLMPrefsChanged, KTXLMAgentID,
            [this](const NSNotification &notification) { updatePreferences(notification); }},
    };
    for (const Observation &observation : observations) {
        NSDistributedNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
            this, observation.handler, observation.name, observation.object);
    }
}

void KTXLumarooPreferencePane::mainViewDidLoad()
{
    startAgentOnFirstRun();
    setState(autoUpdateButton_, boolValue(CFPreferencesCopyAppValue(SUEnableAutomaticChecks, KTXLMAppID)));
    RegisterMyHelpBook();
    relaunchIfNewerCodeIsInstalled();
    showVersion();
    showCredits();
    followDesktop();
}

void KTXLumarooPreferencePane::startAgentOnFirstRun()
{
    if (CFPreferencesCopyAppValue(KTXFirstLaunch, KTXLMAppID).isValid())
        return;
    stopAgent();
    startAgent();
}

void KTXLumarooPreferencePane::relaunchIfNewerCodeIsInstalled()
{
    const QString key = QStringLiteral("CFBundleVersion");
    const int installedVersion = intValue(NSBundle::infoDictionaryOnDisk(bundle()->bundlePath()).value(key));
    setLoadedVersion(intValue(infoDictionary_.value(key)));
    if (installedVersion > loadedVersion())
        performAfterDelayZero("relaunch", [this] { relaunch(); });
}

void KTXLumarooPreferencePane::willSelect()
{
    logIfDebugging(QStringLiteral("willSelect"));
    readUserPrefs();
    updateAgentVisuals();
    performAfterDelayZero("performClick:", [this] {
        if (const NSMatrix *matrix = modifierCheckboxMatrix_.get())
            performClick(matrix->cellWithTag(0));
    });
}

void KTXLumarooPreferencePane::didSelect()
{
    logIfDebugging(QStringLiteral("didSelect"));
    if (!mainView())
        return;
    NSColorPanel *panel = NSColorPanel::sharedColorPanel();
    const QRectF window = windowFrame(mainView()->window());
    const double middle = window.y() + (window.height() - panel->frame().height()) / 2;
    panel->setFrameOrigin({window.x() + window.width() + gapToColorPanel, middle});
}

NSPreferencePaneUnselectReply KTXLumarooPreferencePane::shouldUnselect()
{
    bool isConflict = false;
    for (int index = 0; index < KTXMovementKeyCount; ++index)
        isConflict = isConflict || hotKeyIsDuplicateAtIndex(index);
    if (!isConflict || userQuitsDespiteConflicts())
        return NSUnselectNow;
    selectTabViewItemAtIndex(tabbedView_, HotKeyTab);
    return NSUnselectCancel;
}

void KTXLumarooPreferencePane::didUnselect()
{
    if (selectedTabIndex(tabbedView_) == HotKeyTab) {
        for (int row = 0; row < KTXMovementKeyCount; ++row)
            setBackgroundColor(viewWithTag(mainView(), row), Qt::white);
    }
    syncPrefsAndNotifyAgent();
}

KTXLumarooPreferencePane::~KTXLumarooPreferencePane()
{
    NSNotificationCenter::defaultCenter()->removeObserver(this);
    NSDistributedNotificationCenter::defaultCenter()->removeObserver(this);
}

void KTXLumarooPreferencePane::performAfterDelayZero(const char *operation, std::function<void()> perform)
{
    QTimer::singleShot(0, this, [operation, perform = std::move(perform)] { runAtBoundary(operation, perform); });
}

void KTXLumarooPreferencePane::logIfDebugging(const QString &text)
{
    if (CFPreferencesGetAppBooleanValue(KTXShouldDebug, KTXLMAppID))
        NSLog(QStringLiteral("Lumaroo prefPane: ") + text);
}

QString KTXLumarooPreferencePane::localized(const QString &text) const
{
    return bundle()->localizedStringForKeyValueTable(text, {}, {});
}
