#include "tutorial/SingleTutorial.h"

#include "platform/foundation/system/NSLog.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

namespace {

const QString service = QStringLiteral("com.quorvane.LumarooTutorial");
const QString path = QStringLiteral("/com/quorvane/LumarooTutorial");
constexpr int patience = 25000; // milliseconds
// The first may end between two of our steps.
constexpr int attempts = 4;

bool becomeFirst(QObject *object)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object first: whoever sees the name must find it.
    bus.registerObject(path, object, QDBusConnection::ExportScriptableSlots);
    const auto reply = bus.interface()->registerService(service);
    const bool isFirst = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!isFirst)
        bus.unregisterObject(path);
    return isFirst;
}

} // namespace

bool SingleTutorial::isFirst()
{
    if (!QDBusConnection::sessionBus().isConnected())
        return true;
    QDBusMessage answer;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (becomeFirst(this))
            return true;
        const QDBusMessage raise = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Raise"));
        answer = QDBusConnection::sessionBus().call(raise, QDBus::Block, patience);
        if (answer.type() == QDBusMessage::ReplyMessage)
            return false;
    }
    NSLog(QStringLiteral("lumaroo: tutorial: the one that runs does not answer: %1").arg(answer.errorMessage()));
    return false;
}

void SingleTutorial::Raise()
{
    Q_EMIT raiseRequested();
}
