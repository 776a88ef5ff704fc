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

/// Calls a method of the running agent's interface; waits 5 s at most.
AgentAnswer askRunningAgent(const QString &method, const QVariantList &arguments = {});

/// Asks the running agent to quit and waits until its name is gone from the bus, 10 s at most.
AgentAnswer quitRunningAgent();
