#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "platform/appkit/Relaunch.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/processes/Processes.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/system/NSLog.h"

namespace {

const QString agentName = QStringLiteral("LumarooAgent");

[[noreturn]] void failToStartAgent(const KTXLumarooPreferencePane *pane, int line, const QString &description)
{
    handleFailureInMethodObjectFileLineNumberDescription(
        QStringLiteral("startAgent"), pane, QStringLiteral("KTXLumarooPreferencePane"), line, description);
}

} // namespace

void KTXLumarooPreferencePane::toggleAgent(QObject *sender)
{
    if (state(sender) == NSOnState)
        startAgent();
    else
        stopAgent();
}

ProcessSerialNumber KTXLumarooPreferencePane::agentPSN() const
{
    ProcessSerialNumber process = kNoProcess;
    while (GetNextProcess(&process) == noErr) {
        const QVariantMap information =
            ProcessInformationCopyDictionary(process, kProcessDictionaryIncludeAllInformationMask);
        if (information.value(kCFBundleIdentifierKey) == QStringLiteral("com.quorvane.%1").arg(agentName))
            break;
    }
    return process;
}

bool KTXLumarooPreferencePane::agentIsRunning() const
{
    return agentPSN().lowLongOfPSN != 0;
}

void KTXLumarooPreferencePane::updateAgentVisuals()
{
    if (agentIsRunning())
        setAgentVisualsOn({});
    else
        setAgentVisualsOff();
}

void KTXLumarooPreferencePane::setAgentVisualsOn(const NSNotification &notification)
{
    logIfDebugging(QStringLiteral("setAgentVisualsOn"));
    // The agent is on, also where its newer code cannot be brought in.
    if (intValue(notification.userInfo.value(KTXLMAgentVersion)) > loadedVersion())
        runAtBoundary("relaunch", [this] { relaunch(); });
    NSNotificationCenter::defaultCenter()->postNotificationNameObject(KTXLMAgentLaunched);
    setState(toggleStateButton_, NSOnState);
    setTextColor(enabledState_, Qt::black);
    setStringValue(enabledState_, localized(QStringLiteral("Lumaroo Enabled")));
}

void KTXLumarooPreferencePane::setAgentVisualsOff()
{
    logIfDebugging(QStringLiteral("setAgentVisualsOff"));
    setState(toggleStateButton_, NSOffState);
    setTextColor(enabledState_, Qt::red);
    setStringValue(enabledState_, localized(QStringLiteral("Lumaroo Disabled")));
}

bool KTXLumarooPreferencePane::startAgent()
{
    logIfDebugging(QStringLiteral("startAgent"));
    FSRef application;
    if (FSPathMakeRef(bundle()->pathForResourceOfType(agentName, QStringLiteral("app")), &application) != noErr)
        failToStartAgent(this, 47, QStringLiteral("No path found for Lumaroo.agent"));
    if (agentIsRunning())
        return true;
    const LSApplicationParameters parameters{0, kLSLaunchDontSwitch | kLSLaunchAsync, &application};
    if (LSOpenApplication(&parameters, &agentPSN_) != noErr)
        failToStartAgent(this, 63, QStringLiteral("Can't Launch Lumaroo.agent"));
    return true;
}

void KTXLumarooPreferencePane::stopAgent()
{
    logIfDebugging(QStringLiteral("stopAgent"));
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), KTXLMAgentShouldTerminate, KTXLMAppID, {}, true);
}

void KTXLumarooPreferencePane::relaunch()
{
    const bool isDebugging = CFPreferencesGetAppBooleanValue(KTXShouldDebug, KTXLMAppID);
    const auto log = [isDebugging](const QString &text) {
        if (isDebugging)
            NSLog(QStringLiteral("Lumaroo prefPane: ") + text);
    };
    log(QStringLiteral("relaunch"));
    const QString launcher = bundle()->pathForResourceOfType(QStringLiteral("launcher"), {});
    if (launcher.isEmpty()) {
        log(QStringLiteral("relaunch -- no path found for launcher"));
        return;
    }
    log(QStringLiteral("relaunch -- path found"));
    relaunchWithPane(bundle()->bundlePath(), launcher, isDebugging ? LauncherLog::Verbose : LauncherLog::Quiet);
}
