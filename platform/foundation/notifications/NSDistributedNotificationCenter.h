#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/notifications/NSNotification.h"

#include <QObject>
#include <memory>

/// Named notifications between this user's processes, carried by the session bus. Main thread only.
///
/// A notification is the signal com.quorvane.DistributedNotificationCenter.Notification on the path
/// /com/quorvane/DistributedNotificationCenter, with the arguments name (s), object (s, empty for none), user
/// information (a{sv}) and deliver-immediately (b). A process receives its own posts too. Without a session bus nothing
/// fails: posting and observing do nothing, and one line is logged.
class LM_FOUNDATION NSDistributedNotificationCenter
{
public:
    static NSDistributedNotificationCenter *defaultCenter();

    /// Calls `selector`, through the run loop, at each notification of `name` (with an empty `object`: from any sender;
    /// else only with that object). Values of unexpected types count as absent. An observer that is destroyed is
    /// forgotten. What a handler throws is logged.
    void addObserverSelectorNameObject(
        QObject *observer, NotificationHandler selector, const QString &name, const QString &object = {});

    void removeObserver(const QObject *observer);
    void removeObserverNameObject(const QObject *observer, const QString &name, const QString &object = {});

    void postNotificationNameObjectUserInfoDeliverImmediately(
        const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately);

private:
    NSDistributedNotificationCenter();
    ~NSDistributedNotificationCenter();
    class Private;
    std::unique_ptr<Private> d;
};
