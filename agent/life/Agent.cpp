#include "agent/life/Agent.h"

#include "KTXConstants.h"
#include "agent/keys/ActionKeyTable.h"
#include "agent/life/NewerAgent.h"
#include "agent/life/TutorialStart.h"
#include "agent/life/linux/AgentName.h"
#include "agent/life/linux/ProgramReplacement.h"
#include "agent/notices/KeysToPress.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/SessionBus.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/system/NSLog.h"
#include "platform/foundation/system/RunningExecutable.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

namespace {

constexpr char welcomedVariable[] = "LUMAROO_WELCOMED";

int loadedVersion()
{
    return intValue(NSBundle::mainBundle()->infoDictionary().value(QStringLiteral("CFBundleVersion")));
}

void announce(const QString &name, const QVariantMap &userInfo = {})
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), name, KTXLMAgentID, userInfo, true);
}

} // namespace

Agent::Agent(AgentName &name)
    : name_(name), bundlePath_(NSBundle::mainBundle()->bundlePath()), version_(loadedVersion())
{
    connect(&gestures_, &Gestures::over, this, &Agent::followSettingsAfterGesture);
    connect(&actions_, &Actions::previewShown, this, [this] { overlay_.pause(); });
    connect(&actions_, &Actions::previewEnded, this, [this] { overlay_.goOn(); });
    connect(&notices_, &AgentNotices::modifiersChosen, this, &Agent::takeModifiers);
    connect(&notices_, &AgentNotices::tutorialChosen, this, &Agent::runTutorial);
    connect(&notices_, &AgentNotices::settingsChosen, &actions_, [this] { actions_.openPrefPane(); });
}

void Agent::launch()
{
    // First, and until the bus knows it, so that no change falls between reading and hearing.
    observePane();
    waitForSessionBus();
    readSettings();
    const bool isToWelcome = isWelcomeDue();
    markFirstLaunch();
    announceLaunch();
    if (isToWelcome)
        welcome();
}

void Agent::observePane()
{
    const auto observe = [this](const QString &name, void (Agent::*reaction)()) {
        NSDistributedNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
            this, [this, reaction](const NSNotification &) { (this->*reaction)(); }, name, KTXLMAppID);
    };
    observe(KTXLMPrefsChanged, &Agent::readChange);
    observe(KTXLMAgentShouldTerminate, &Agent::endForPane);
    observe(KTXLMPrefPaneLaunched, &Agent::meetPane);
    observe(KTXLMRunTutorial, &Agent::runTutorial);
}

void Agent::readSettings()
{
    // Its keys are another agent's already.
    if (hasEnded_)
        return;
    changes_ += settings_.follow(NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID));
    followSettings();
    ++readings_;
    Q_EMIT settingsRead();
}

void Agent::followSettings()
{
    isBehind_ = gestures_.isOn();
    if (isBehind_)
        return;
    windows_->open();
    overlay_.open();
    const QStringList changes = std::exchange(changes_, {});
    if (isOn_ && (hotKeys_.isAnyRefused() || std::any_of(changes.cbegin(), changes.cend(), isSettingOfKeys)))
        takeKeys();
    if (!changes.isEmpty() || readings_ == 0)
        gestures_.apply(settings());
}

void Agent::followSettingsAfterGesture()
{
    if (isBehind_ && !hasEnded_)
        followSettings();
}

void Agent::takeKeys()
{
    hotKeys_.apply(settings());
    gestureKeys_.apply(settings());
    // What would end it may be another key now, or none.
    actions_.endPreview();
    notices_.lookAtKeys();
}

void Agent::giveKeysBack()
{
    hotKeys_.release();
    QVariantMap withoutModifiers = settings();
    withoutModifiers.insert(KTXModifierMask, 0);
    gestureKeys_.apply(withoutModifiers);
}

void Agent::setOn(bool on)
{
    if (hasEnded_ || std::exchange(isOn_, on) == on)
        return;
    gestures_.cancel();
    actions_.endPreview();
    // Nothing but its own switch gives keys back, so each of them is refused now.
    if (on)
        followSettings();
    else
        giveKeysBack();
    Q_EMIT switched(on);
}

void Agent::readChange()
{
    paneIsOpening_ = false;
    readSettings();
    // The pane fills in its defaults by writing the whole domain anew, and that may have overtaken our mark.
    markFirstLaunch();
}

/// As the pane stores them.
void Agent::takeModifiers(quint32 modifiers)
{
    CFPreferencesSetAppValue(KTXModifierMask, qlonglong(modifiers), KTXLMAppID);
    if (!CFPreferencesAppSynchronize(KTXLMAppID)) {
        // It would be stored with whatever is stored next, when nobody thinks of it any more.
        LMPreferencesTakeBackAppValue(KTXModifierMask, KTXLMAppID);
        notices_.tellOfUnstoredModifiers();
        return;
    }
    readSettings();
    announce(KTXLMPrefsChanged);
}

void Agent::markFirstLaunch()
{
    // A mark that could not be stored is seen by us alone, and tried again.
    if (settings().value(KTXFirstLaunch).isValid() && !markIsPending_)
        return;
    CFPreferencesSetAppValue(KTXFirstLaunch, true, KTXLMAppID);
    CFPreferencesSetAppValue(KTXWelcomeShown, true, KTXLMAppID);
    markIsPending_ = !CFPreferencesAppSynchronize(KTXLMAppID);
    if (markIsPending_)
        return;
    readSettings();
    announce(KTXLMPrefsChanged);
}

/// Only at the first launch ever. Where nothing can be stored each one looks like it, so what this process starts or
/// becomes knows it too.
bool Agent::isWelcomeDue() const
{
    const bool knowsLumaroo = settings().value(KTXFirstLaunch).isValid() || settings().value(KTXWelcomeShown).toBool()
        || settings().value(KTXTutorialDone).toBool();
    return !knowsLumaroo && !qEnvironmentVariableIsSet(welcomedVariable);
}

void Agent::welcome()
{
    qputenv(welcomedVariable, "1");
    notices_.welcome(keysToPress(settings(), hotKeys_.hotKeys()));
}

void Agent::announceLaunch()
{
    announce(KTXLMAgentLaunched, {{KTXLMAgentVersion, version_}});
    Q_EMIT launched();
}

void Agent::announceEnd()
{
    announce(KTXLMAgentIsTerminating);
    Q_EMIT terminating();
    gestures_.cancel();
    hotKeys_.release();
    // The bus handles our messages in order: with its answer it has taken the announcement too.
    name_.release();
}

void Agent::terminate()
{
    if (std::exchange(hasEnded_, true))
        return;
    announceEnd();
    Q_EMIT ended(0);
}

void Agent::meetPane()
{
    paneIsOpening_ = true;
    const QString newer = newerAgentProgram(bundlePath_, version_);
    if (!hasEnded_ && !newer.isEmpty())
        startAnew(newer);
}

void Agent::endForPane()
{
    // On a first run the pane asks for the end and starts an agent in one go. It finds us still running then, and
    // starts none: nobody would come after us.
    if (!hasEnded_ && isFirstRunForPane())
        startAnew(runningExecutablePath());
    else
        terminate();
}

/// Whether the pane that is opening finds no mark of a first launch: it does not see one that we could not store.
bool Agent::isFirstRunForPane()
{
    return paneIsOpening_ && (markIsPending_ || !CFPreferencesCopyAppValue(KTXFirstLaunch, KTXLMAppID).isValid());
}

void Agent::startAnew(const QString &program)
{
    announceEnd();
    goOn(program, replaceProgram(program, QCoreApplication::arguments().mid(1)));
}

void Agent::runTutorial()
{
    Q_EMIT tutorialRequested();
    // Its steps are about the keys.
    setOn(true);
    if (!startTutorial())
        notices_.tellOfMissingTutorial();
}

void Agent::goOn(const QString &program, const QString &error)
{
    NSLog(QStringLiteral("lumaroo: agent: %1 does not start: %2; going on with version %3")
              .arg(program, error)
              .arg(version_));
    if (name_.takeAtOnce()) {
        followSettings();
        announceLaunch();
        return;
    }
    hasEnded_ = true;
    Q_EMIT ended(0);
}
