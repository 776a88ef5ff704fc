#include "agent/life/AgentTray.h"

#include "KTXConstants.h"
#include "agent/life/Agent.h"
#include "agent/notices/KeysToPress.h"

AgentTray::AgentTray(Agent &agent) : agent_(agent)
{
    // Later: what is told here is not to hold up what has been set.
    connect(&agent, &Agent::settingsRead, this, &AgentTray::follow, Qt::QueuedConnection);
    connect(&agent, &Agent::switched, this, &AgentTray::follow, Qt::QueuedConnection);
    connect(&agent.hotKeys(), &AgentHotKeys::changed, this, &AgentTray::follow, Qt::QueuedConnection);
    connect(&tray_, &Tray::chosen, this, &AgentTray::perform);
}

void AgentTray::follow()
{
    // Its keys change before its first reading is done.
    if (agent_.readings() == 0)
        return;
    const bool isShown = agent_.settings().value(KTXShowInTray).toBool() && !agent_.hasEnded();
    if (isShown) {
        tray_.show({agent_.isOn(), keysToPress(agent_.settings(), agent_.hotKeys().hotKeys())});
        return;
    }
    tray_.hide();
    // Without the icon nobody could switch it on again.
    agent_.setOn(true);
}

void AgentTray::perform(TrayChoice choice)
{
    switch (choice) {
    case TrayChoice::OnOff:
        agent_.setOn(!agent_.isOn());
        break;
    case TrayChoice::Settings:
        agent_.actions().openPrefPane();
        break;
    case TrayChoice::Tutorial:
        agent_.runTutorial();
        break;
    case TrayChoice::Quit:
        agent_.terminate();
        break;
    }
}
