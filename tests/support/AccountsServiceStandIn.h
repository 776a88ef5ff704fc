#pragma once

#include "SecondBus.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QThread>
#include <atomic>

/// A system bus of the test's own with an accounts service on it, which answers in a thread of its own: whoever asks
/// waits. This process's questions go there from now on.
class AccountsServiceStandIn
{
public:
    enum Behaviour { Answers, KnowsNoUser, SaysNothing, SaysNothingOfTheUser };

    AccountsServiceStandIn();
    ~AccountsServiceStandIn();
    Q_DISABLE_COPY_MOVE(AccountsServiceStandIn)

    void setEmail(const QString &email) { object_.email = email; }
    void setBehaviour(Behaviour behaviour) { object_.behaviour = behaviour; }
    /// The numbers of the users that were asked for.
    QList<qlonglong> askedFor() const { return object_.askedFor; }

private:
    /// What is set here is set while nobody asks.
    class Object : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

        QString email;
        std::atomic<Behaviour> behaviour = Answers;
        QList<qlonglong> askedFor;
    };

    SecondBus bus_;
    Object object_;
    QThread thread_;
    QByteArray before_ = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
};
