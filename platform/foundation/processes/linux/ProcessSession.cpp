#include "platform/foundation/processes/linux/ProcessSession.h"

#include "platform/foundation/processes/linux/ProcessFolders.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace {

constexpr int longestAnswer = 5000; // milliseconds

const QByteArray addressVariable("DBUS_SESSION_BUS_ADDRESS");
const QByteArray folderVariable("XDG_RUNTIME_DIR");

/// What it tells of the bus beyond its place, as its identity, not everybody knows.
QByteArray placeIn(const QByteArray &address)
{
    const qsizetype identity = address.indexOf(",guid=");
    return identity < 0 ? address : address.left(identity);
}

template <typename Environment>
QByteArray sessionBusIn(Environment variable)
{
    const QByteArray address = variable(addressVariable);
    return address.isEmpty() ? "unix:path=" + variable(folderVariable) + "/bus" : placeIn(address);
}

} // namespace

bool wasStartedInThisSession(pid_t process)
{
    const auto own = [](const QByteArray &name) { return qgetenv(name.constData()); };
    const auto other = [process](const QByteArray &name) { return environmentVariableOf(process, name); };
    return sessionBusIn(own) == sessionBusIn(other);
}

bool ownsNameOnSessionBus(pid_t process, const QString &name)
{
    QDBusMessage question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetConnectionUnixProcessID"));
    question << name;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, longestAnswer);
    return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toUInt() == quint32(process);
}
