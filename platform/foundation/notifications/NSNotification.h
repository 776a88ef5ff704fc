#pragma once

#include <QString>
#include <QVariant>
#include <functional>

/// One notification as an observer receives it.
struct NSNotification
{
    QString name;
    QVariant object; ///< a text (always, on the distributed centre), a pointer to an object, or no value
    QVariantMap userInfo;
};

using NotificationHandler = std::function<void(const NSNotification &notification)>;
