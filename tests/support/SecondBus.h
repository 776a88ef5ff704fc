#pragma once

#include "Wait.h"

#include <QProcess>

/// A session bus of another session.
class SecondBus
{
public:
    SecondBus()
    {
        const QString folder = qEnvironmentVariable("LUMAROO_SOURCE") + QStringLiteral("/tests/support");
        bus_.start(QStringLiteral("dbus-daemon"),
            {"--config-file=" + folder + "/session-bus.conf", "--nofork", "--print-address"});
        if (!waitUntil([this] { return bus_.canReadLine(); }))
            qFatal("no second session bus");
        address_ = QString::fromUtf8(bus_.readLine()).trimmed();
    }
    ~SecondBus()
    {
        bus_.kill();
        bus_.waitForFinished();
    }
    SecondBus(const SecondBus &) = delete;
    SecondBus &operator=(const SecondBus &) = delete;

    /// What the programs of that session are started with.
    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address_);
        return environment;
    }

private:
    QProcess bus_;
    QString address_;
};
