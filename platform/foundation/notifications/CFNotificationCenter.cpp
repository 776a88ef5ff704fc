#include "platform/foundation/notifications/CFNotificationCenter.h"

CFNotificationCenterRef CFNotificationCenterGetDistributedCenter()
{
    return NSDistributedNotificationCenter::defaultCenter();
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef center, const QString &name, const QString &object,
    const QVariantMap &userInfo, bool deliverImmediately)
{
    center->postNotificationNameObjectUserInfoDeliverImmediately(name, object, userInfo, deliverImmediately);
}
