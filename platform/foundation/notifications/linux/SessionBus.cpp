#include "platform/foundation/notifications/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>

bool waitForSessionBus()
{
    constexpr int longestWait = 5000; // milliseconds
    // The bus handles our messages in order: with its answer to the last one it has taken the others.
    const QDBusMessage question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"));
    return QDBusConnection::sessionBus().call(question, QDBus::Block, longestWait).type() == QDBusMessage::ReplyMessage;
}
