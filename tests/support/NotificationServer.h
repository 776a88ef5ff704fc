#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The desktop's notifications on the private bus: it shows nothing and remembers what it was told. Answered by the run
/// loop.
class NotificationServer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Bubble
    {
        quint32 replaced = 0;
        QString title;
        QString text;
        QStringList actions;
        QString picture; ///< its address
    };

    NotificationServer()
    {
        bus_.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        bus_.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }
    ~NotificationServer() override
    {
        bus_.unregisterService(QStringLiteral("org.freedesktop.Notifications"));
        bus_.unregisterObject(QStringLiteral("/org/freedesktop/Notifications"));
    }

    const QList<Bubble> &bubbles() const { return bubbles_; }
    /// As its user presses the button of the newest bubble, or another one, counted from 0.
    void pressButton(int button = 0)
    {
        Q_EMIT ActionInvoked(quint32(bubbles_.size()), bubbles_.last().actions.value(2 * button));
    }

public Q_SLOTS:
    // The interface on the bus. A bubble's number is its place, counted from 1.
    quint32 Notify(const QString &, quint32 replaced, const QString &, const QString &title, const QString &text,
        const QStringList &actions, const QVariantMap &hints, int)
    {
        bubbles_.append({replaced, title, text, actions, hints.value(QStringLiteral("image-path")).toString()});
        return quint32(bubbles_.size());
    }

Q_SIGNALS:
    void ActionInvoked(quint32 id, const QString &action);
    void NotificationClosed(quint32 id, quint32 reason);

private:
    QDBusConnection bus_ = QDBusConnection::sessionBus();
    QList<Bubble> bubbles_;
};
