#include "agent/life/linux/AgentName.h"

#include "KTXConstants.h"
#include "agent/life/linux/AgentBus.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QEventLoop>
#include <QTimer>
#include <optional>

namespace {

constexpr int longestWait = 5000; // milliseconds

/// One attempt to take the name from whoever owns it now.
class NameClaim : public QObject
{
public:
    explicit NameClaim(AgentName &name)
        : name_(name), end_(agentService(), QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForUnregistration)
    {
        connect(&end_, &QDBusServiceWatcher::serviceUnregistered, this, &NameClaim::claim);
        NSDistributedNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
            this, [this](const NSNotification &) { ownerIsLeaving_ = true; }, KTXLMAgentIsTerminating, KTXLMAgentID);
    }

    AgentName::Outcome wait()
    {
        claim();
        if (!outcome_) {
            QTimer::singleShot(longestWait, this, [this] { giveUp(); });
            loop_.exec();
        }
        return outcome_.value_or(AgentName::Outcome::NoAnswer);
    }

private:
    void claim()
    {
        if (name_.takeAtOnce())
            finish(AgentName::Outcome::Owned);
        else
            askOwner();
    }

    /// Whoever is about to end does not answer any more; the name is free then, and the watcher says so.
    void askOwner()
    {
        const QDBusPendingCall call = QDBusConnection::sessionBus().asyncCall(agentCall(QStringLiteral("Version")));
        auto *const answer = new QDBusPendingCallWatcher(call, this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            answer->deleteLater();
            if (!meansNoOwner(answer->error()) && !ownerIsLeaving_)
                finish(AgentName::Outcome::RunsAlready);
        });
    }

    void giveUp() { finish(ownerIsLeaving_ ? AgentName::Outcome::NotGivenBack : AgentName::Outcome::NoAnswer); }

    void finish(AgentName::Outcome outcome)
    {
        if (!outcome_)
            outcome_ = outcome;
        loop_.quit();
    }

    AgentName &name_;
    QDBusServiceWatcher end_;
    QEventLoop loop_;
    bool ownerIsLeaving_ = false;
    std::optional<AgentName::Outcome> outcome_;
};

} // namespace

AgentName::AgentName()
{
    QDBusConnection::sessionBus().connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this, SIGNAL(busHasGone()));
}

AgentName::Outcome AgentName::take()
{
    return QDBusConnection::sessionBus().isConnected() ? NameClaim(*this).wait() : Outcome::NoBus;
}

bool AgentName::takeAtOnce()
{
    QDBusConnectionInterface *const bus = QDBusConnection::sessionBus().interface();
    if (!bus)
        return false;
    const auto reply = bus->registerService(agentService());
    return reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

void AgentName::release()
{
    QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReleaseName"));
    message << agentService();
    QDBusConnection::sessionBus().call(message, QDBus::Block, longestWait);
}
