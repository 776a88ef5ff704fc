#include "platform/foundation/notifications/linux/NotificationMessage.h"

#include "platform/foundation/notifications/linux/BusValue.h"

QString notificationPath()
{
    return QStringLiteral("/com/quorvane/DistributedNotificationCenter");
}

QString notificationInterface()
{
    return QStringLiteral("com.quorvane.DistributedNotificationCenter");
}

QString notificationMember()
{
    return QStringLiteral("Notification");
}

QString notificationSignature()
{
    return QStringLiteral("ssa{sv}b");
}

QDBusMessage notificationMessage(
    const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately)
{
    QDBusMessage message =
        QDBusMessage::createSignal(notificationPath(), notificationInterface(), notificationMember());
    message << name << object << busMap(userInfo) << deliverImmediately;
    return message;
}

std::optional<NSNotification> notificationFromMessage(const QDBusMessage &message)
{
    if (message.signature() != notificationSignature())
        return std::nullopt;
    const QVariantList arguments = message.arguments();
    if (arguments.size() != 4)
        return std::nullopt;
    const QString object = arguments[1].toString();
    return NSNotification{
        arguments[0].toString(), object.isEmpty() ? QVariant() : QVariant(object), plainValue(arguments[2]).toMap()};
}
