#include "platform/foundation/notifications/NSNotificationCenter.h"

#include "platform/foundation/notifications/internal/NotificationObservers.h"

class NSNotificationCenter::Private
{
public:
    NotificationObservers observers;
};

NSNotificationCenter::NSNotificationCenter() : d(std::make_unique<Private>()) { }

NSNotificationCenter::~NSNotificationCenter() = default;

NSNotificationCenter *NSNotificationCenter::defaultCenter()
{
    // Never destroyed: static objects may still be observers while the process ends.
    static auto *const center = new NSNotificationCenter;
    return center;
}

void NSNotificationCenter::addObserverSelectorNameObject(
    QObject *observer, NotificationHandler selector, const QString &name, const QVariant &object)
{
    d->observers.add(observer, std::move(selector), name, object);
}

void NSNotificationCenter::removeObserver(const QObject *observer)
{
    d->observers.remove(observer);
}

void NSNotificationCenter::removeObserverNameObject(
    const QObject *observer, const QString &name, const QVariant &object)
{
    d->observers.remove(observer, name, object);
}

void NSNotificationCenter::postNotificationNameObject(
    const QString &name, const QVariant &object, const QVariantMap &userInfo)
{
    d->observers.deliver({name, object, userInfo}, [&](const NotificationObserver &registration) {
        return registration.name == name
            && (!registration.object.isValid() || isSameNotificationObject(registration.object, object));
    });
}
