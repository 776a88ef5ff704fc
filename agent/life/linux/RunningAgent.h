#pragma once

#include <QString>
#include <QVariantList>

// The agent that runs in this session, as another process asks it.

struct AgentAnswer
{
    enum class Outcome { Answered, NotRunning, Failed };
    Outcome outcome = Outcome::Failed;
    QString text; ///< the answer, or what failed
};

enum class AnswerTime : quint8 {
    AtOnce, ///< 5 s at most
    WhenDone ///< of what other programs and the disk may hold up; 30 s at most
};

/// Calls a method of the running agent's interface and waits for its answer.
AgentAnswer askRunningAgent(
    const QString &method, const QVariantList &arguments = {}, AnswerTime time = AnswerTime::AtOnce);

/// Asks the running agent to quit and waits until its name is gone from the bus, 10 s at most.
AgentAnswer quitRunningAgent();
