#pragma once

#include "Wait.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

/// dunst, a real notification server, on the session's display. Its user's choice among a bubble's buttons is the one
/// that says a word.
class Dunst
{
public:
    /// Whether this machine has it.
    static bool isInstalled() { return !program().isEmpty(); }

    explicit Dunst(const QByteArray &choice)
    {
        QFile file(folder_.filePath(QStringLiteral("dunstrc")));
        if (file.open(QIODevice::WriteOnly)) {
            file.write("[global]\ndmenu = /bin/grep -m 1 -F -- '" + choice + "'\n");
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
    /// As its user presses a button.
    static void press() { ask(QStringLiteral("ContextMenuCall")); }
    /// As its user clicks on the newest bubble.
    static void click() { ask(QStringLiteral("NotificationAction"), {uint(0)}); }
    /// Returns when it has gone.
    void end()
    {
        process_.kill();
        process_.waitForFinished();
        waitUntil([] { return !isThere(); });
    }

private:
    static void ask(const QString &method, const QVariantList &arguments = {})
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(service(), path(), QStringLiteral("org.dunstproject.cmd0"), method);
        call.setArguments(arguments);
        QDBusConnection::sessionBus().call(call);
    }
    static QString program() { return QStandardPaths::findExecutable(QStringLiteral("dunst")); }
    static QString service() { return QStringLiteral("org.freedesktop.Notifications"); }
    static QString path() { return QStringLiteral("/org/freedesktop/Notifications"); }

    QTemporaryDir folder_;
    QProcess process_;
};
