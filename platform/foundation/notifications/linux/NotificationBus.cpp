#include "platform/foundation/notifications/linux/NotificationBus.h"

#include "platform/foundation/notifications/linux/NotificationMessage.h"
#include "platform/foundation/system/NSLog.h"

#include <algorithm>

namespace {

constexpr qsizetype longestMatchValue = 255; // the bus takes rules of up to 1024 bytes

/// QtDBus puts match values into its rule unquoted and in Latin-1, which the bus library answers by ending the process.
bool canStandInARule(QChar character)
{
    return character.unicode() >= 0x20 && character.unicode() < 0x7f && character != u'\'';
}

QString matchValue(const QString &text)
{
    const bool isMatchable =
        text.size() <= longestMatchValue && std::all_of(text.cbegin(), text.cend(), canStandInARule);
    return isMatchable ? text : QString();
}

} // namespace

bool NotificationFilter::accepts(const NSNotification &notification) const
{
    return notification.name == name && (object.isEmpty() || notification.object.toString() == object);
}

QStringList busMatch(const NotificationFilter &filter)
{
    if (filter.object.isEmpty())
        return {matchValue(filter.name)};
    return {matchValue(filter.name), matchValue(filter.object)};
}

BusSubscription::BusSubscription(
    QDBusConnection connection, NotificationFilter filter, const NotificationReceiver &receiver)
    : connection_(std::move(connection)), filter_(std::move(filter)), receiver_(receiver)
{
    connection_.connect({}, notificationPath(), notificationInterface(), notificationMember(), busMatch(filter_),
        QString(), this, SLOT(receive(QDBusMessage)));
}

void BusSubscription::end()
{
    connection_.disconnect({}, notificationPath(), notificationInterface(), notificationMember(), busMatch(filter_),
        QString(), this, SLOT(receive(QDBusMessage)));
    deleteLater();
}

void BusSubscription::receive(const QDBusMessage &message)
{
    const std::optional<NSNotification> notification = notificationFromMessage(message);
    if (notification && filter_.accepts(*notification))
        receiver_(filter_, *notification);
}

void NotificationBus::setReceiver(NotificationReceiver receiver)
{
    receiver_ = std::move(receiver);
}

void NotificationBus::subscribe(const NotificationFilter &filter)
{
    if (!connectOnce())
        return;
    BusSubscription *&subscription = subscriptions_[filter];
    if (!subscription)
        subscription = new BusSubscription(*connection_, filter, receiver_);
    ++subscription->users;
}

void NotificationBus::unsubscribe(const NotificationFilter &filter)
{
    const auto found = subscriptions_.find(filter);
    if (found == subscriptions_.end() || --found->second->users > 0)
        return;
    found->second->end();
    subscriptions_.erase(found);
}

void NotificationBus::post(
    const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately)
{
    if (connectOnce())
        connection_->send(notificationMessage(name, object, userInfo, deliverImmediately));
}

bool NotificationBus::connectOnce()
{
    if (!connection_) {
        connection_ = QDBusConnection::sessionBus();
        connection_->connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
            QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this, SLOT(busHasGone()));
        if (!connection_->isConnected())
            report(QStringLiteral("there is no session bus; other programs are neither told nor heard"));
    } else if (!connection_->isConnected()) {
        busHasGone();
    }
    return connection_->isConnected();
}

void NotificationBus::busHasGone()
{
    report(QStringLiteral("the session bus has gone; other programs are neither told nor heard from now on"));
}

void NotificationBus::report(const QString &what)
{
    if (!std::exchange(reported_, true))
        NSLog(QStringLiteral("lumaroo: notifications: ") + what);
}
