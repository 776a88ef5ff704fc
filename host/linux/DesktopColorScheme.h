#pragma once

#include "host/ColorScheme.h"

#include <QDBusVariant>
#include <QObject>

class QDBusPendingCallWatcher;

/// The desktop's wish for light or dark windows, as its settings portal tells it. Asks without waiting; where no portal
/// answers nothing is emitted.
class DesktopColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit DesktopColorScheme(QObject *parent);

Q_SIGNALS:
    void changed(ColorScheme scheme);

private Q_SLOTS:
    void takeChange(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask(const QString &method);
    void takeAnswer(QDBusPendingCallWatcher *answer, const QString &method);
    void take(const QVariant &value);

    bool heardOfChange_ = false;
};
