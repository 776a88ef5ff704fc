#include "platform/foundation/notifications/internal/NotificationObservers.h"

#include "platform/foundation/Boundary.h"

#include <algorithm>

namespace {

bool isObjectPointer(const QVariant &value)
{
    return value.metaType().flags().testFlag(QMetaType::PointerToQObject);
}

/// Looks at the address only: the object behind it may be gone.
const QObject *objectAddress(const QVariant &value)
{
    return *static_cast<QObject *const *>(value.constData());
}

} // namespace

bool isSameNotificationObject(const QVariant &left, const QVariant &right)
{
    if (isObjectPointer(left) && isObjectPointer(right))
        return objectAddress(left) == objectAddress(right);
    return left.metaType() == right.metaType() && left == right;
}

void NotificationObservers::add(
    QObject *observer, NotificationHandler selector, const QString &name, const QVariant &object)
{
    registrations_.push_back(std::make_shared<NotificationObserver>(
        NotificationObserver{observer, observer, std::move(selector), name, object}));
    connect(observer, &QObject::destroyed, this, qOverload<const QObject *>(&NotificationObservers::remove),
        Qt::UniqueConnection);
}

void NotificationObservers::remove(const QObject *observer)
{
    removeWhere([observer](const NotificationObserver &registration) { return registration.identity == observer; });
}

void NotificationObservers::remove(const QObject *observer, const QString &name, const QVariant &object)
{
    removeWhere([&](const NotificationObserver &registration) {
        return registration.identity == observer && registration.name == name
            && (!object.isValid() || isSameNotificationObject(registration.object, object));
    });
}

void NotificationObservers::removeWhere(const Condition &condition)
{
    const auto isKept = [&](const auto &registration) { return !condition(*registration); };
    const auto firstRemoved = std::stable_partition(registrations_.begin(), registrations_.end(), isKept);
    const std::vector<std::shared_ptr<NotificationObserver>> removed(firstRemoved, registrations_.end());
    registrations_.erase(firstRemoved, registrations_.end());
    for (const auto &registration : removed) {
        registration->removed = true;
        Q_EMIT forgotten(registration->name, registration->object);
    }
}

void NotificationObservers::deliver(const NSNotification &notification, const Condition &condition) const
{
    std::vector<std::shared_ptr<NotificationObserver>> called;
    for (const auto &registration : registrations_) {
        if (registration->isActive() && condition(*registration))
            called.push_back(registration);
    }
    const QByteArray place = "notification \"" + notification.name.toUtf8() + '"';
    for (const auto &registration : called) {
        if (registration->isActive())
            runAtBoundary(place.constData(), [&] { registration->selector(notification); });
    }
}
