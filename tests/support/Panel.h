#pragma once

#include "Wait.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <memory>

/// xfce4-panel on the session's display, at its upper left corner, with nothing on it but status icons. Without the
/// session's bus daemon to start it, the store of its settings is started here.
class Panel
{
public:
    /// Whether this machine has it.
    static bool isInstalled() { return !program().isEmpty() && !storeProgram().isEmpty(); }

    Panel()
    {
        writeSettings();
        start(store_, storeProgram());
        waitUntil([] { return isOnBus(QStringLiteral("org.xfce.Xfconf")); });
        start(panel_, program());
    }
    ~Panel()
    {
        panel_.terminate();
        panel_.waitForFinished();
        waitUntil([] { return !isOnBus(trayName()); });
        store_.terminate();
        store_.waitForFinished();
    }
    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;

    /// Waits until it takes status icons up; false when that does not come about.
    static bool hasTray()
    {
        return waitUntil([] { return isOnBus(trayName()); });
    }

private:
    static QString trayName() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
    static QString program() { return QStandardPaths::findExecutable(QStringLiteral("xfce4-panel")); }
    /// As the bus would find it.
    static QString storeProgram()
    {
        QFile service(QStringLiteral("/usr/share/dbus-1/services/org.xfce.Xfconf.service"));
        static const QRegularExpression line(QStringLiteral("^Exec=(\\S+)"), QRegularExpression::MultilineOption);
        return service.open(QIODevice::ReadOnly) ? line.match(QString::fromUtf8(service.readAll())).captured(1)
                                                 : QString();
    }
    static bool isOnBus(const QString &name)
    {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered(name);
    }
    static void start(QProcess &process, const QString &program)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
        environment.insert(QStringLiteral("NO_AT_BRIDGE"), QStringLiteral("1"));
        process.setProcessEnvironment(environment);
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, QStringList());
    }
    static void writeSettings()
    {
        const QString folder =
            qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/xfce4/xfconf/xfce-perchannel-xml");
        QDir().mkpath(folder);
        QFile file(folder + QStringLiteral("/xfce4-panel.xml"));
        if (file.open(QIODevice::WriteOnly))
            file.write(settings);
    }

    static constexpr char settings[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="20"/>
      <property name="size" type="uint" value="40"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
)";

    QProcess store_;
    QProcess panel_;
};
