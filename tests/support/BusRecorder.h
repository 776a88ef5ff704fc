#pragma once

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QVariantMap>

/// One notification as it went over the session bus.
struct BusNotification
{
    QString name;
    QString object;
    QVariantMap userInfo;
    bool deliverImmediately = false;

    bool operator==(const BusNotification &) const = default;
};

/// Records, on a bus connection of its own, every distributed notification in the order in which the bus carried them.
class BusRecorder : public QObject
{
    Q_OBJECT

public:
    BusRecorder();
    ~BusRecorder() override;

    /// Waits until the bus has delivered to us everything posted before this call by this process, and returns what was
    /// recorded since the last clear().
    QList<BusNotification> notifications();
    QStringList names();
    void clear();

    /// Posts a notification as another process would, past the platform layer, once the bus knows what this process
    /// observes.
    void post(const QString &name, const QString &object, const QVariantMap &userInfo = {});
    /// Sends any message as another process would.
    void post(const QDBusMessage &message);

private Q_SLOTS:
    void record(const QString &name, const QString &object, const QVariantMap &userInfo, bool deliverImmediately);

private:
    void waitForTheBus();
    void waitForRegistrations();

    QDBusConnection connection_;
    QList<BusNotification> recorded_;
};
