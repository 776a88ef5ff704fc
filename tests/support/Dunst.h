#pragma once

#include "Wait.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

/// dunst, a real notification server, on the session's display. Its user's choice among a bubble's buttons is the first
/// or the last one.
class Dunst
{
public:
    /// Whether this machine has it.
    static bool isInstalled() { return !program().isEmpty(); }

    enum class Choice : quint8 { First, Last };
    explicit Dunst(Choice choice)
    {
        QFile file(folder_.filePath(QStringLiteral("dunstrc")));
        if (file.open(QIODevice::WriteOnly)) {
            file.write("[global]\ndmenu = ");
            file.write(choice == Choice::First ? "/usr/bin/head -n 1\n" : "/usr/bin/tail -n 1\n");
        }
        file.close();
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.setStandardOutputFile(QProcess::nullDevice());
        process_.start(program(), {QStringLiteral("-conf"), file.fileName()});
        waitUntil([] { return isThere(); });
    }
    ~Dunst() { end(); }
    Dunst(const Dunst &) = delete;
    Dunst &operator=(const Dunst &) = delete;

    static bool isThere() { return QDBusConnection::sessionBus().interface()->isServiceRegistered(service()); }
    /// How many bubbles it shows now.
    static int shown()
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            service(), path(), QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        call << QStringLiteral("org.dunstproject.cmd0") << QStringLiteral("displayedLength");
        return QDBusConnection::sessionBus().call(call).arguments().value(0).value<QDBusVariant>().variant().toInt();
    }
    /// As its user presses a button of the newest bubble.
    static void press()
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            service(), path(), QStringLiteral("org.dunstproject.cmd0"), QStringLiteral("NotificationAction"));
        call << uint(0);
        QDBusConnection::sessionBus().call(call);
    }
    /// Returns when it has gone.
    void end()
    {
        process_.kill();
        process_.waitForFinished();
        waitUntil([] { return !isThere(); });
    }

private:
    static QString program() { return QStandardPaths::findExecutable(QStringLiteral("dunst")); }
    static QString service() { return QStringLiteral("org.freedesktop.Notifications"); }
    static QString path() { return QStringLiteral("/org/freedesktop/Notifications"); }

    QTemporaryDir folder_;
    QProcess process_;
};
