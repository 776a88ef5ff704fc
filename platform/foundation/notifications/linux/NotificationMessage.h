#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/notifications/NSNotification.h"

#include <QDBusMessage>
#include <optional>

// A notification as a signal on the session bus; com.quorvane.DistributedNotificationCenter.xml describes it.

LM_FOUNDATION QString notificationPath();
LM_FOUNDATION QString notificationInterface();
LM_FOUNDATION QString notificationMember();
LM_FOUNDATION QString notificationSignature();

/// The signal for a notification. User information that no property list could hold is left out.
LM_FOUNDATION QDBusMessage notificationMessage(
    const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately);

/// The notification a signal carries, or none when its arguments are not those of a notification. Whatever a stranger
/// sends: values that no property list could hold are left out.
LM_FOUNDATION std::optional<NSNotification> notificationFromMessage(const QDBusMessage &message);
