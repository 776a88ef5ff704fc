#pragma once

#include "tutorial/AgentReport.h"

#include <QObject>

/// The agent that runs in this session, as it is heard on the bus. Nothing here waits for it.
class RunningAgent : public QObject
{
    Q_OBJECT

public:
    RunningAgent();

    static bool isBusThere();
    /// Has it report; also when it comes up, or its settings change. told(), wentOff() or saidNothing() follows.
    void ask();
    /// Has it read the settings first. For who has just changed them.
    void askAfterReading();
    /// Starts the one that comes with the tutorial; false, with one logged line, where that cannot be run. It reports
    /// once it is up.
    static bool start();
    /// Has one that has given its keys back take them again, as whoever asks it for the tutorial does. It reports then.
    static void switchOn();

Q_SIGNALS:
    void told(const AgentReport &report);
    void wentOff();
    void saidNothing();

    void selectionBegan();
    void selectionMoved();
    void selectionAccepted();
    void selectionCancelled();
    void selectionRefused();
    void keysChanged();

private:
    void handleAnswer(const QString &json);
    void handleEnd();

    int question_ = 0; ///< the newest; what comes of others is old
};
