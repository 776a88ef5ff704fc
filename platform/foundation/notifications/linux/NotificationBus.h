#pragma once

#include "platform/foundation/notifications/NSNotification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <compare>
#include <functional>
#include <map>
#include <memory>
#include <optional>

/// Which notifications an observer wants: those of a name, and with an object that is not empty only those of that
/// object.
struct NotificationFilter
{
    QString name;
    QString object;

    std::strong_ordering operator<=>(const NotificationFilter &) const = default; // NOLINT(modernize-use-nullptr)
    bool accepts(const NSNotification &notification) const;
};

/// What the session bus itself compares for a filter, an entry for each argument. A null entry is left to this process:
/// a text that QtDBus could not put into a match rule (with an apostrophe, say), or that would make the rule too long
/// for the bus.
QStringList busMatch(const NotificationFilter &filter);

using NotificationReceiver = std::function<void(const NotificationFilter &filter, const NSNotification &notification)>;

/// One filter, watched on the bus while the object lives.
class BusSubscription : public QObject
{
    Q_OBJECT

public:
    BusSubscription(QDBusConnection connection, NotificationFilter filter, const NotificationReceiver &receiver);
    /// Asks the bus for nothing more and goes once the run loop is reached: it may be receiving just now.
    void end();

    int users = 0;

private Q_SLOTS:
    void receive(const QDBusMessage &message);

private:
    QDBusConnection connection_;
    NotificationFilter filter_;
    const NotificationReceiver &receiver_;
};

/// The session bus as the distributed notification centre uses it. Connects at the first use; without a bus, and after
/// its end, does nothing.
class NotificationBus : public QObject
{
    Q_OBJECT

public:
    /// Who is called, through the run loop, for each subscription that a notification passes.
    void setReceiver(NotificationReceiver receiver);
    /// Counts: a filter subscribed twice is served once, until it is unsubscribed twice.
    void subscribe(const NotificationFilter &filter);
    void unsubscribe(const NotificationFilter &filter);
    void post(const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately);

private Q_SLOTS:
    void busHasGone();

private:
    bool connectOnce();
    void report(const QString &what);

    NotificationReceiver receiver_;
    std::optional<QDBusConnection> connection_;
    std::map<NotificationFilter, BusSubscription *> subscriptions_;
    bool reported_ = false;
};
