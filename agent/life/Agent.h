#pragma once

#include "agent/actions/Actions.h"
#include "agent/actions/UncoveringOverlay.h"
#include "agent/gestures/GestureCommands.h"
#include "agent/keys/AgentHotKeys.h"
#include "agent/life/AgentSettings.h"
#include "agent/notices/AgentNotices.h"

#include <QObject>
#include <QVariantMap>

class AgentName;

/// The background agent: keeps what is stored as it stands, and hears and tells the settings pane.
class Agent : public QObject
{
    Q_OBJECT

public:
    /// Takes its version from the main bundle now: whatever stands on disk later is not what was loaded.
    explicit Agent(AgentName &name);

    int version() const { return version_; }
    /// Each key of the domain with the value to go by, as of the last reading.
    const QVariantMap &settings() const { return settings_.values(); }
    qint64 readings() const { return readings_; }
    /// The keys of its actions, and whether they work.
    const AgentHotKeys &hotKeys() const { return hotKeys_; }
    /// What its user does with windows.
    const Gestures &gestures() const { return gestures_; }
    Actions &actions() { return actions_; }
    const Actions &actions() const { return actions_; }
    /// What scripts do with windows in its stead.
    GestureCommands commands() { return GestureCommands(gestures_); }

    /// Reads the settings, observes the pane and announces itself. Called once, when the name is owned.
    void launch();
    /// Reads the settings as they are stored now, and has its keys follow them: during a gesture as soon as that is
    /// over.
    void readSettings();
    bool isOn() const { return isOn_; }
    /// Gives its keys back for now, or takes them again. Nothing is stored of that, and the next agent is on.
    void setOn(bool on);
    /// Opens the tutorial, for which it is on again; its user is told where that cannot be.
    void runTutorial();
    /// It has announced its end.
    bool hasEnded() const { return hasEnded_; }
    /// Announces its end, gives keys and name back and emits ended(); the bus has taken all of that when it returns.
    void terminate();

Q_SIGNALS:
    void settingsRead();
    void launched();
    void terminating();
    void tutorialRequested();
    void switched(bool on);
    /// Nothing more comes of this agent; the program exits with `status`.
    void ended(int status);

private:
    void observePane();
    void followSettings();
    void followSettingsAfterGesture();
    void takeKeys();
    void giveKeysBack();
    void meetPane();
    void readChange();
    void takeModifiers(quint32 modifiers);
    bool isWelcomeDue() const;
    void welcome();
    void markFirstLaunch();
    void announceLaunch();
    void announceEnd();
    void endForPane();
    bool isFirstRunForPane();
    void startAnew(const QString &program);
    void goOn(const QString &program, const QString &error);

    AgentName &name_;
    const QString bundlePath_;
    const int version_;
    EffectiveSettings settings_;
    AgentHotKeys hotKeys_;
    GestureKeys gestureKeys_{hotKeys_};
    const std::unique_ptr<WindowSystem> windows_ = windowSystem();
    UncoveringOverlay overlay_{overlay()};
    Gestures gestures_{*windows_, overlay_, gestureKeys_};
    AgentNotices notices_{hotKeys_, gestures_};
    Actions actions_{*windows_, gestures_};
    qint64 readings_ = 0;
    QStringList changes_; ///< of settings, since they were followed last
    bool isOn_ = true; ///< and not off for now
    bool isBehind_ = false; ///< what was read last is still to be followed
    bool hasEnded_ = false;
    bool markIsPending_ = false; ///< of the first launch, since it could not be stored
    bool paneIsOpening_ = false; ///< since it said so, until it has announced its settings
};
