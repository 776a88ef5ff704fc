#include "pane/AgentWatch.h"

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXConstants.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <algorithm>

namespace {

constexpr int patience = 2000; // milliseconds

} // namespace

AgentWatch::AgentWatch()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto *const owner = new QDBusServiceWatcher(KTXLMAgentID, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this, &AgentWatch::ask);
    // From anybody: by its sender's name the toolkit would wait for the bus.
    bus.connect({}, KTXLMAgentPath, KTXLMAgentID, KTXHotKeysChanged, this, SLOT(ask()));
    bus.connect({}, KTXLMAgentPath, KTXLMAgentID, KTXActionKeyPressed, this, SLOT(hearKey(QString)));
    // Once who is to hear of it has connected.
    QMetaObject::invokeMethod(this, &AgentWatch::ask, Qt::QueuedConnection);
}

AgentWatch::~AgentWatch()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.disconnect({}, KTXLMAgentPath, KTXLMAgentID, KTXHotKeysChanged, this, SLOT(ask()));
    bus.disconnect({}, KTXLMAgentPath, KTXLMAgentID, KTXActionKeyPressed, this, SLOT(hearKey(QString)));
}

void AgentWatch::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(KTXLMAgentID, KTXLMAgentPath, KTXLMAgentID, KTXAskSettings);
    question.setAutoStartService(false);
    auto *const answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question, patience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, number = ++question_] {
        answer->deleteLater();
        const QDBusPendingReply<QString> reply = *answer;
        hear(number, reply.isError() ? QByteArray() : reply.value().toUtf8());
    });
}

void AgentWatch::hear(quint64 question, const QByteArray &answer)
{
    if (question == question_)
        Q_EMIT told(agentKeys(answer));
}

void AgentWatch::hearKey(const QString &action)
{
    const auto &all = KTXActionKeys();
    const auto place = std::find_if(
        all.cbegin(), all.cend(), [&action](const KTXActionKey &one) { return one.preferenceName == action; });
    if (place != all.cend())
        Q_EMIT heardKey(int(place - all.cbegin()));
}
