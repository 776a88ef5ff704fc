#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"

#include "platform/foundation/notifications/internal/NotificationObservers.h"
#include "platform/foundation/notifications/linux/NotificationBus.h"

class NSDistributedNotificationCenter::Private
{
public:
    NotificationObservers observers;
    NotificationBus bus;
};

NSDistributedNotificationCenter::NSDistributedNotificationCenter() : d(std::make_unique<Private>())
{
    // A registration is served by the subscription made for exactly its filter, so it is called once even if a
    // notification passes several.
    d->bus.setReceiver([this](const NotificationFilter &filter, const NSNotification &notification) {
        d->observers.deliver(notification, [&filter](const NotificationObserver &registration) {
            return filter == NotificationFilter{registration.name, registration.object.toString()};
        });
    });
    QObject::connect(
        &d->observers, &NotificationObservers::forgotten, [this](const QString &name, const QVariant &object) {
            d->bus.unsubscribe({name, object.toString()});
        });
}

NSDistributedNotificationCenter::~NSDistributedNotificationCenter() = default;

NSDistributedNotificationCenter *NSDistributedNotificationCenter::defaultCenter()
{
    // Never destroyed: its connection belongs to the bus library, which may end before it.
    static auto *const center = new NSDistributedNotificationCenter;
    return center;
}

void NSDistributedNotificationCenter::addObserverSelectorNameObject(
    QObject *observer, NotificationHandler selector, const QString &name, const QString &object)
{
    d->observers.add(observer, std::move(selector), name, object);
    d->bus.subscribe({name, object});
}

void NSDistributedNotificationCenter::removeObserver(const QObject *observer)
{
    d->observers.remove(observer);
}

void NSDistributedNotificationCenter::removeObserverNameObject(
    const QObject *observer, const QString &name, const QString &object)
{
    d->observers.remove(observer, name, object.isEmpty() ? QVariant() : QVariant(object));
}

void NSDistributedNotificationCenter::postNotificationNameObjectUserInfoDeliverImmediately(
    const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately)
{
    d->bus.post(name, object, userInfo, deliverImmediately);
}
