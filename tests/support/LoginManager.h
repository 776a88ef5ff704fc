#pragma once

#include "SecondBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <gtest/gtest.h>

/// A system bus of the test's own, on which the test stands for the login manager.
class LoginManager
{
public:
    /// Has a program find this bus.
    QMap<QString, QString> variables() const { return {{QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), address()}}; }

    void lock()
    {
        say(QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1/session/_31"),
            QStringLiteral("org.freedesktop.login1.Session"), QStringLiteral("Lock")));
    }
    void prepareForSleep()
    {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
        signal << true;
        say(signal);
    }

private:
    QString address() const { return bus_.environment().value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS")); }
    void say(const QDBusMessage &signal)
    {
        QDBusConnection connection = QDBusConnection::connectToBus(address(), QStringLiteral("login-manager"));
        ASSERT_TRUE(connection.registerService(QStringLiteral("org.freedesktop.login1")));
        ASSERT_TRUE(connection.send(signal));
        QDBusConnection::disconnectFromBus(QStringLiteral("login-manager"));
    }

    SecondBus bus_;
};

/// Before a session that is to find it.
struct WithLoginManager
{
    LoginManager loginManager;
};
