#pragma once

#include "agent/tray/Tray.h"

class Agent;

/// The agent among the desktop's status icons: tells there how it is, and does what is chosen there. Its user may do
/// without by "showInTray".
class AgentTray : public QObject
{
    Q_OBJECT

public:
    /// It outlives this, and has not read its settings yet.
    explicit AgentTray(Agent &agent);

private:
    void follow();
    void perform(TrayChoice choice);

    Agent &agent_;
    Tray tray_;
};
