#include "pane/AgentPresence.h"

#include "KTXConstants.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <chrono>

namespace {

// The name goes together with the announcement, and comes back at once where the agent only runs itself anew.
constexpr std::chrono::milliseconds untilLossCounts(500);
constexpr std::chrono::seconds untilStartFailed(10);

QDBusMessage ownerQuestion()
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage question = QDBusMessage::createMethodCall(
        bus, QStringLiteral("/org/freedesktop/DBus"), bus, QStringLiteral("NameHasOwner"));
    question << KTXLMAgentID;
    return question;
}

} // namespace

AgentPresence::AgentPresence()
{
    loss_.setSingleShot(true);
    loss_.setInterval(untilLossCounts);
    loss_.callOnTimeout(this, &AgentPresence::judgeLoss);
    start_.setSingleShot(true);
    start_.setInterval(untilStartFailed);
    start_.callOnTimeout(this, &AgentPresence::missStart);
    auto *const owner = new QDBusServiceWatcher(
        KTXLMAgentID, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &, const QString &now) { ownerChanged(!now.isEmpty()); });
    NSDistributedNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        this, [this](const NSNotification &) { hasAnnouncedEnd_ = true; }, KTXLMAgentIsTerminating);
    askForOwner();
}

void AgentPresence::askForOwner()
{
    if (!QDBusConnection::sessionBus().isConnected()) {
        set(Off);
        return;
    }
    auto *const answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(ownerQuestion()), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<bool> reply = *answer;
        if (state_ != Unknown)
            return;
        if (!reply.isError() && reply.value())
            ownerChanged(true);
        else
            set(Off);
    });
}

void AgentPresence::ownerChanged(bool isOwned)
{
    isOwned_ = isOwned;
    if (!isOwned) {
        loss_.start();
        return;
    }
    loss_.stop();
    start_.stop();
    hasAnnouncedEnd_ = false;
    set(Runs);
}

void AgentPresence::judgeLoss()
{
    if (isOwned_)
        return;
    set(hasAnnouncedEnd_ ? Off : Ended);
    if (state_ == Ended)
        Q_EMIT ended();
}

void AgentPresence::expectStart()
{
    if (!isOwned_)
        start_.start();
}

void AgentPresence::missStart()
{
    start_.stop();
    if (!isOwned_)
        set(CannotStart);
}

void AgentPresence::set(State state)
{
    state_ = state;
    Q_EMIT changed();
}
