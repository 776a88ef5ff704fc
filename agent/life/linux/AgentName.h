#pragma once

#include <QObject>

/// The bus name that makes one agent in a session the only one.
class AgentName : public QObject
{
    Q_OBJECT

public:
    AgentName();

    enum class Outcome {
        Owned,
        RunsAlready, ///< by an agent that goes on running
        NotGivenBack, ///< by one that has announced its end, but does not come to it
        NoAnswer, ///< by one that does not say whether it goes on
        NoBus,
    };
    /// Takes the name. Where another owns it that has announced its end, waits for it, on the run loop; 5 s at most.
    Outcome take();
    /// Takes the name if nobody owns it.
    bool takeAtOnce();
    /// Gives the name back; the bus has taken everything sent so far when it returns (5 s at most).
    void release();

Q_SIGNALS:
    void busHasGone();
};
