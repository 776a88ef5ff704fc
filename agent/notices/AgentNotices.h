#pragma once

#include "agent/gestures/Gestures.h"
#include "agent/keys/AgentHotKeys.h"
#include "agent/notices/Notices.h"

#include <optional>

/// What the agent tells its user by itself: each cause once, until it is another.
class AgentNotices : public QObject
{
    Q_OBJECT

public:
    AgentNotices(const AgentHotKeys &hotKeys, const Gestures &gestures);

    /// Tells of movement keys that other programs hold, with other modifiers to take. Called when the keys have
    /// followed the settings.
    void lookAtKeys();
    /// Tells that those which its user has taken could not be stored, and offers them again.
    void tellOfUnstoredModifiers();
    /// Tells that the tutorial, which was asked for, could not be started.
    void tellOfMissingTutorial();
    /// Tells who has started the agent for the first time that it is on, and what to press (empty where no key works);
    /// offers the tutorial and the settings.
    void welcome(const QString &keysToPress);

Q_SIGNALS:
    /// The user takes these modifiers.
    void modifiersChosen(quint32 modifiers);
    /// The user takes up what the welcome offers.
    void tutorialChosen();
    void settingsChosen();

private:
    void tell(Notice notice);
    void handlePress(const QString &matter);
    void handleRefusal(const GestureRefusal &refusal);

    const AgentHotKeys &hotKeys_;
    Notices notices_;
    QStringList heldKeys_; ///< by others, as of the last look
    quint32 offered_ = 0; ///< modifiers
    std::optional<WindowFailure> unreadable_; ///< that was told last, since windows were read
};
