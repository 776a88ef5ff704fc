#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "KTXLoginEntry.h"
#include "pane/KeySheet.h"
#include "pane/PaneDesktop.h"
#include "pane/PaneKeys.h"
#include "pane/RepeatTrial.h"
#include "pane/ThisCopy.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/PreferencesTrouble.h"

// What this desktop adds to the pane: what really comes of the keys, and the start at login.

void KTXLumarooPreferencePane::followDesktop()
{
    desktop_ = new PaneDesktop(mainView(), bundle(), this);
    const auto showWhatIsStored = [this] {
        syncPrefsAndNotifyAgent();
        readUserPrefs();
        refreshConflictMarkers();
    };
    keys_ = new PaneKeys(mainView(), bundle(), {[this] { return keyCodes_; }, showWhatIsStored}, this);
    connect(&desktop_->agent(), &AgentWatch::heardKey, keys_, &PaneKeys::tellOfTrial);
    connect(&desktop_->presence(), &AgentPresence::ended, this,
        [this] { runAtBoundary("setAgentVisualsOff", [this] { setAgentVisualsOff(); }); });
    // What could not be stored, or read, was announced in vain when it was set; and what is stored may be something
    // else.
    const auto catchUp = [this] { runAtBoundary("readUserPrefs", [this] { readUserPrefs(); }); };
    const auto troubleChanged = [this, catchUp](const NSNotification &) {
        if (!hasPreferencesTrouble(KTXLMAppID))
            QMetaObject::invokeMethod(this, catchUp, Qt::QueuedConnection);
    };
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        this, troubleChanged, PreferencesTroubleDidChangeNotification, KTXLMAppID);
    new RepeatTrial(mainView(), bundle(), this);
    new KeySheet(mainView(), bundle(), this);
    showIcon(mainView(), bundle());
    showWhereUpdatesComeFrom(mainView(), bundle());
}

/// As toggleAgent, and the line below the switch tells of a start that comes to nothing.
void KTXLumarooPreferencePane::toggleAgentAndTell(QObject *sender)
{
    const bool isStart = desktop_ && state(sender) == NSOnState;
    try {
        toggleAgent(sender);
    } catch (...) {
        if (isStart)
            desktop_->presence().missStart();
        throw;
    }
    if (isStart)
        desktop_->presence().expectStart();
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
