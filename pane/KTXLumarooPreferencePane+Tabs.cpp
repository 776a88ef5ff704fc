#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "pane/TabIndexes.h"
#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSBeep.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

void KTXLumarooPreferencePane::tabViewDidSelectTabViewItem(QTabWidget *tabView, QWidget *tabViewItem)
{
    const int index = tabView->indexOf(tabViewItem);
    logIfDebugging(QStringLiteral("tabView:didSelectTabVewItem %1").arg(index));
    readUserPrefs();
    if (index == AgentTab)
        updateAgentVisuals();
    else if (index == HotKeyTab)
        updateHotKeyFields();
}

/// The page stays as it is: the agent only asks whether it exists, and for the window to come forward.
void KTXLumarooPreferencePane::switchToTab(const NSNotification &notification)
{
    const qint64 index = indexOfTabViewItemWithIdentifier(tabbedView_, notification.object.toString());
    logIfDebugging(QStringLiteral("switchToTab: %1").arg(int(index)));
    if (index == NSNotFound)
        NSBeep();
    else
        NSApplication::sharedApplication()->activateIgnoringOtherApps(true);
}

void KTXLumarooPreferencePane::runTutorial(QObject *)
{
    NSNotificationCenter *inProcess = NSNotificationCenter::defaultCenter();
    if (agentIsRunning()) {
        inProcess->removeObserverNameObject(this, KTXLMAgentLaunched);
        CFNotificationCenterPostNotification(
            CFNotificationCenterGetDistributedCenter(), KTXLMRunTutorial, KTXLMAppID, {}, true);
        return;
    }
    startAgent();
    inProcess->addObserverSelectorNameObject(
        this, [this](const NSNotification &) { runTutorial(nullptr); }, KTXLMAgentLaunched);
}
