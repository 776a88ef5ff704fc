#pragma once

#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"

using CFNotificationCenterRef = NSDistributedNotificationCenter *;

/// The centre that reaches this user's other processes.
LM_FOUNDATION CFNotificationCenterRef CFNotificationCenterGetDistributedCenter();

/// Posts and returns at once; nobody answers, and an absent receiver is no error. `deliverImmediately` also reaches
/// receivers that have suspended delivery.
LM_FOUNDATION void CFNotificationCenterPostNotification(CFNotificationCenterRef center, const QString &name,
    const QString &object, const QVariantMap &userInfo, bool deliverImmediately);
