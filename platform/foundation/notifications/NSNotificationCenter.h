#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/notifications/NSNotification.h"

#include <QObject>
#include <memory>

/// Named notifications inside this process, delivered synchronously, in the order of registration. Main thread only.
class LM_FOUNDATION NSNotificationCenter
{
public:
    NSNotificationCenter();
    ~NSNotificationCenter();
    NSNotificationCenter(const NSNotificationCenter &) = delete;
    NSNotificationCenter &operator=(const NSNotificationCenter &) = delete;

    /// The process's centre.
    static NSNotificationCenter *defaultCenter();

    /// Calls `selector` at each posting of `name` (with an invalid `object`: from any sender; else only with an equal
    /// object). A second registration of the same observer counts on its own. An observer that is destroyed is
    /// forgotten. What a handler throws is logged; the others are still called.
    void addObserverSelectorNameObject(
        QObject *observer, NotificationHandler selector, const QString &name, const QVariant &object = {});

    /// Forgets every registration of the observer. One that is removed while a notification is being delivered is not
    /// called any more.
    void removeObserver(const QObject *observer);
    /// Forgets the observer's registrations for `name` (with an invalid `object`: whatever object they were made for).
    void removeObserverNameObject(const QObject *observer, const QString &name, const QVariant &object = {});

    void postNotificationNameObject(const QString &name, const QVariant &object = {}, const QVariantMap &userInfo = {});

private:
    class Private;
    std::unique_ptr<Private> d;
};
