#include "agent/life/linux/AgentObject.h"

#include "agent/life/Agent.h"
#include "agent/life/SettingsJson.h"
#include "agent/life/linux/AgentBus.h"

#include <QDBusConnection>

namespace {

// The bus ends the connection of whoever sends it more than it takes.
constexpr qsizetype largestAnswer = 1024 * 1024;

} // namespace

AgentObject::AgentObject(Agent &agent) : agent_(agent)
{
    const Gestures *gestures = &agent.gestures();
    connect(gestures, &Gestures::began, this, &AgentObject::SelectionBegan);
    connect(gestures, &Gestures::moved, this, &AgentObject::SelectionMoved);
    connect(gestures, &Gestures::accepted, this, &AgentObject::SelectionAccepted);
    connect(gestures, &Gestures::cancelled, this, &AgentObject::SelectionCancelled);
    connect(gestures, &Gestures::refused, this, &AgentObject::SelectionRefused);
    connect(&agent.hotKeys(), &AgentHotKeys::changed, this, &AgentObject::HotKeysChanged);
    connect(&agent.hotKeys(), &AgentHotKeys::pressed, this, &AgentObject::ActionKeyPressed);
    QDBusConnection::sessionBus().registerObject(
        agentPath(), this, QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals);
}

AgentObject::~AgentObject()
{
    QDBusConnection::sessionBus().unregisterObject(agentPath());
}

int AgentObject::Version() const
{
    return agent_.version();
}

QString AgentObject::Settings() const
{
    const QByteArray json = settingsJson(agent_.version(), agent_.readings(), agent_.settings(),
        agent_.hotKeys().hotKeys(), agent_.hotKeys().freeModifiers());
    if (json.size() <= largestAnswer)
        return QString::fromUtf8(json);
    sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("what the agent has read is too large to be shown"));
    return {};
}

void AgentObject::ReadSettings()
{
    agent_.readSettings();
}

void AgentObject::Quit()
{
    // Later, so that the answer goes first.
    QMetaObject::invokeMethod(&agent_, &Agent::terminate, Qt::QueuedConnection);
}

void AgentObject::Move(const QString &direction)
{
    tell(agent_.commands().move(direction));
}

void AgentObject::Accept()
{
    tell(agent_.commands().accept());
}

void AgentObject::Cancel()
{
    tell(agent_.commands().cancel());
}

QString AgentObject::TakeScreenshot()
{
    agent_.actions().takeScreenshot(answerLater(true));
    return {};
}

void AgentObject::CloseWindow()
{
    agent_.actions().closeWindow(0, answerLater());
}

void AgentObject::ShowPreview()
{
    agent_.actions().showPreview(answerLater());
}

/// Whoever asked hears how an action has ended once it has.
ActionTold AgentObject::answerLater(bool withPath) const
{
    setDelayedReply(true);
    return [withPath, bus = connection(), call = message()](const ActionOutcome &outcome) {
        if (!outcome.failure.isEmpty())
            bus.send(call.createErrorReply(QDBusError::Failed, outcome.failure));
        else
            bus.send(call.createReply(withPath ? QVariantList{outcome.path} : QVariantList()));
    };
}

/// Whoever asked has an error where there is one.
void AgentObject::tell(const QString &failure) const
{
    if (!failure.isEmpty())
        sendErrorReply(QDBusError::Failed, failure);
}
