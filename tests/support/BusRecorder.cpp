#include "BusRecorder.h"

#include "Wait.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUuid>

namespace {

const QString path = QStringLiteral("/com/quorvane/DistributedNotificationCenter");
const QString interface = QStringLiteral("com.quorvane.DistributedNotificationCenter");
const QString member = QStringLiteral("Notification");
const QString marker = QStringLiteral("BusRecorder marker");

QDBusMessage notificationMessage(const QString &name, const QString &object, const QVariantMap &userInfo)
{
    QDBusMessage message = QDBusMessage::createSignal(path, interface, member);
    message << name << object << userInfo << true;
    return message;
}

} // namespace

BusRecorder::BusRecorder()
    : connection_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QUuid::createUuid().toString()))
{
    connection_.connect({}, path, interface, member, this, SLOT(record(QString, QString, QVariantMap, bool)));
}

BusRecorder::~BusRecorder()
{
    QDBusConnection::disconnectFromBus(connection_.name());
}

void BusRecorder::record(
    const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately)
{
    recorded_.append({name, object, userInfo, deliverImmediately});
}

void BusRecorder::waitForRegistrations()
{
    // The bus reads each connection in order: with this answer it has also read which notifications the program
    // observes.
    QDBusConnection::sessionBus().interface()->isServiceRegistered(connection_.baseService());
}

void BusRecorder::waitForTheBus()
{
    // The bus keeps one order for all: a marker posted on the program's own connection follows all that the program
    // posted before.
    const QString id = QUuid::createUuid().toString();
    QDBusConnection::sessionBus().send(notificationMessage(marker, id, {}));
    const auto isOurs = [&id](const BusNotification &notification) {
        return notification.name == marker && notification.object == id;
    };
    waitUntil([&] { return std::any_of(recorded_.cbegin(), recorded_.cend(), isOurs); });
    recorded_.removeIf([](const BusNotification &notification) { return notification.name == marker; });
}

QList<BusNotification> BusRecorder::notifications()
{
    waitForTheBus();
    return recorded_;
}

QStringList BusRecorder::names()
{
    QStringList names;
    for (const BusNotification &notification : notifications())
        names += notification.name;
    return names;
}

void BusRecorder::clear()
{
    waitForTheBus();
    recorded_.clear();
}

void BusRecorder::post(const QString &name, const QString &object, const QVariantMap &userInfo)
{
    post(notificationMessage(name, object, userInfo));
}

void BusRecorder::post(const QDBusMessage &message)
{
    waitForRegistrations();
    connection_.send(message);
}
