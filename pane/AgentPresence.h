#pragma once

#include <QObject>
#include <QTimer>

/// Whether the agent is there, by its name on the session bus and what it announces.
class AgentPresence : public QObject
{
    Q_OBJECT

public:
    enum State { Unknown, Off, Runs, Ended, CannotStart };

    AgentPresence();

    State state() const { return state_; }
    /// Called when the agent is being started: one that is not there in time cannot be started.
    void expectStart();
    /// Called when it could not even be launched.
    void missStart();

Q_SIGNALS:
    void changed();
    /// It is gone without having announced its end, as one that crashed or was killed; within a second.
    void ended();

private:
    void askForOwner();
    void ownerChanged(bool isOwned);
    void judgeLoss();
    void set(State state);

    State state_ = Unknown;
    bool isOwned_ = false;
    bool hasAnnouncedEnd_ = false;
    QTimer loss_;
    QTimer start_;
};
