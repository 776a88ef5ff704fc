#include "host/linux/SingleInstance.h"

#include "platform/foundation/system/NSLog.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

namespace {

const QString service = QStringLiteral("com.quorvane.LumarooSettings");
const QString path = QStringLiteral("/com/quorvane/LumarooSettings");
const QString method = QStringLiteral("Open");
constexpr int answerTimeout = 25000;
// The owner may end between two of our steps, and the next one of several that waited may be faster.
constexpr int attempts = 16;

bool ownerEnded(const QDBusMessage &answer)
{
    const QDBusError::ErrorType error = QDBusError(answer).type();
    return error == QDBusError::ServiceUnknown || error == QDBusError::NoReply || error == QDBusError::UnknownObject;
}

QDBusMessage handOver(const QString &request, const QString &activationToken)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, service, method);
    message << request << activationToken;
    return QDBusConnection::sessionBus().call(message, QDBus::Block, answerTimeout);
}

bool nameIsOwned()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(service);
}

} // namespace

bool SingleInstance::becomeFirst()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object first: whoever sees the name must find it.
    bus.registerObject(path, this, QDBusConnection::ExportScriptableSlots);
    const auto reply = bus.interface()->registerService(service);
    const bool first = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!first)
        bus.unregisterObject(path);
    return first;
}

SingleInstance::Outcome SingleInstance::start(const QString &request, const QString &activationToken)
{
    if (!QDBusConnection::sessionBus().isConnected())
        return Outcome::First;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (becomeFirst())
            return Outcome::First;
        const QDBusMessage answer = handOver(request, activationToken);
        if (answer.type() == QDBusMessage::ReplyMessage)
            return Outcome::HandedOver;
        if (!ownerEnded(answer) || nameIsOwned()) {
            NSLog(QStringLiteral("lumaroo: settings: the running settings application does not answer: %1")
                      .arg(answer.errorMessage()));
            return Outcome::NoAnswer;
        }
    }
    return Outcome::NoAnswer;
}

void SingleInstance::Open(const QString &request, const QString &activationToken)
{
    if (takesRequests_) {
        Q_EMIT requested(request, activationToken);
        return;
    }
    setDelayedReply(true); // none is ever sent: our end is the answer
}
