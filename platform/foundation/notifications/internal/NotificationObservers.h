#pragma once

#include "platform/foundation/notifications/NSNotification.h"

#include <QObject>
#include <QPointer>
#include <memory>
#include <vector>

/// One registration with a notification centre.
struct NotificationObserver
{
    QPointer<QObject> observer;
    const QObject *identity; ///< the observer's address, also after its end
    NotificationHandler selector;
    QString name;
    QVariant object; ///< no value: from any sender

    bool isActive() const { return !removed && observer; }
    bool removed = false;
};

/// The registrations of one notification centre, in their order. Handlers may register, remove and destroy observers,
/// and post, while they run.
class NotificationObservers : public QObject
{
    Q_OBJECT

public:
    void add(QObject *observer, NotificationHandler selector, const QString &name, const QVariant &object);
    void remove(const QObject *observer);
    void remove(const QObject *observer, const QString &name, const QVariant &object);

    using Condition = std::function<bool(const NotificationObserver &registration)>;
    /// Calls the active registrations for which `condition` holds now; one made during the call is left out, one
    /// removed during it is not called.
    void deliver(const NSNotification &notification, const Condition &condition) const;

Q_SIGNALS:
    /// A registration is forgotten: removed, or its observer was destroyed.
    void forgotten(const QString &name, const QVariant &object);

private:
    void removeWhere(const Condition &condition);

    std::vector<std::shared_ptr<NotificationObserver>> registrations_;
};

/// Equal texts, or the same QObject whatever pointer type the values hold.
bool isSameNotificationObject(const QVariant &left, const QVariant &right);
