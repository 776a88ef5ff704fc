#include "AccountsServiceStandIn.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace {

const QString connectionName = QStringLiteral("accounts-service-stand-in");
const QString service = QStringLiteral("org.freedesktop.Accounts");
const QString userPath = QStringLiteral("/org/freedesktop/Accounts/User7");

} // namespace

AccountsServiceStandIn::AccountsServiceStandIn()
{
    const QString address = bus_.environment().value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address.toUtf8());
    QDBusConnection connection = QDBusConnection::connectToBus(address, connectionName);
    if (!connection.registerVirtualObject(
            QStringLiteral("/org/freedesktop/Accounts"), &object_, QDBusConnection::SubPath)
        || !connection.registerService(service))
        qFatal("no accounts service");
    object_.moveToThread(&thread_);
    thread_.start();
}

AccountsServiceStandIn::~AccountsServiceStandIn()
{
    QDBusConnection::disconnectFromBus(connectionName);
    thread_.quit();
    thread_.wait();
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", before_);
}

bool AccountsServiceStandIn::Object::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const bool asksForUser = message.member() == u"FindUserById" && message.path() == u"/org/freedesktop/Accounts"
        && message.interface() == service && message.signature() == u"x";
    const bool asksForEmail = message.member() == u"Get" && message.path() == userPath
        && message.arguments() == QVariantList{service + QStringLiteral(".User"), QStringLiteral("Email")};
    if (asksForUser)
        askedFor += message.arguments().constFirst().toLongLong();
    if (behaviour == SaysNothing || (behaviour == SaysNothingOfTheUser && asksForEmail))
        return true;
    if (asksForUser && behaviour != KnowsNoUser)
        connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(userPath))));
    else if (asksForEmail)
        connection.send(message.createReply(QVariant::fromValue(QDBusVariant(email))));
    else
        connection.send(message.createErrorReply(service + QStringLiteral(".Error.Failed"), QStringLiteral("no")));
    return true;
}
