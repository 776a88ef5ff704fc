#pragma once

#include "pane/AgentKeys.h"

#include <QObject>

/// Follows what the running agent says of its keys. Asks it on the session bus and never waits: the answer comes
/// through the run loop.
class AgentWatch : public QObject
{
    Q_OBJECT

public:
    AgentWatch();
    ~AgentWatch() override;

Q_SIGNALS:
    /// At the beginning, and each time that it may be otherwise. Nothing is known where no agent runs, or where it does
    /// not answer within 2 s or says nothing of this.
    void told(const AgentKeys &keys);
    /// The agent has heard a key of its own: that of the action in this row.
    void heardKey(int row);

private Q_SLOTS:
    void ask();
    void hearKey(const QString &action);

private:
    void hear(quint64 question, const QByteArray &answer);

    quint64 question_ = 0; ///< the newest one's answer alone counts
};
