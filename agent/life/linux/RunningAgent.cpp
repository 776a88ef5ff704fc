#include "agent/life/linux/RunningAgent.h"

#include "agent/life/linux/AgentBus.h"
#include "platform/foundation/notifications/SessionBus.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int longestAnswer = 5000; // milliseconds
constexpr int longestAction = 30000;
constexpr int longestEnd = 10000;

AgentAnswer failure(const QDBusError &error)
{
    if (error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout)
        return {AgentAnswer::Outcome::Failed, QStringLiteral("the running agent does not answer")};
    if (meansNoOwner(error))
        return {AgentAnswer::Outcome::NotRunning, {}};
    if (error.type() == QDBusError::UnknownMethod)
        return {
            AgentAnswer::Outcome::Failed, QStringLiteral("the running agent is of another version and cannot do that")};
    return {AgentAnswer::Outcome::Failed, error.message()};
}

} // namespace

AgentAnswer askRunningAgent(const QString &method, const QVariantList &arguments, AnswerTime time)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return {AgentAnswer::Outcome::Failed, QStringLiteral("there is no session bus")};
    QDBusMessage call = agentCall(method);
    call.setArguments(arguments);
    const QDBusMessage answer =
        bus.call(call, QDBus::Block, time == AnswerTime::WhenDone ? longestAction : longestAnswer);
    if (answer.type() != QDBusMessage::ReplyMessage) {
        // The bus library's thread still has to do with a call that was not answered; a program must not exit
        // meanwhile.
        waitForSessionBus();
        return failure(QDBusError(answer));
    }
    return {AgentAnswer::Outcome::Answered, answer.arguments().value(0).toString()};
}

AgentAnswer quitRunningAgent()
{
    bool hasGone = false;
    QEventLoop loop;
    // Watches before it asks, so that the end cannot be missed.
    const QDBusServiceWatcher end(
        agentService(), QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(&end, &QDBusServiceWatcher::serviceUnregistered, &loop, [&hasGone, &loop] {
        hasGone = true;
        loop.quit();
    });
    const AgentAnswer answer = askRunningAgent(QStringLiteral("Quit"));
    if (answer.outcome != AgentAnswer::Outcome::Answered)
        return answer;
    QTimer::singleShot(longestEnd, &loop, &QEventLoop::quit);
    loop.exec();
    if (!hasGone)
        return {AgentAnswer::Outcome::Failed, QStringLiteral("the running agent does not end")};
    return answer;
}
