#pragma once

#include "CapturedLog.h"

#include "platform/foundation/preferences/NSUserDefaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

/// A user with a home folder, settings and a system of its own, in which crash logs may lie.
class CrashLogFolders : public testing::Test
{
protected:
    CrashLogFolders()
    {
        qputenv("HOME", QFile::encodeName(folder_.filePath("home")));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_.filePath("config")));
        qputenv("LUMAROO_SYSTEM_ROOT", QFile::encodeName(folder_.filePath("root")));
        QDir().mkpath(home());
        setSystemVersion("12");
    }
    ~CrashLogFolders() override
    {
        qputenv("HOME", home_);
        qputenv("XDG_CONFIG_HOME", configuration_);
        qunsetenv("LUMAROO_SYSTEM_ROOT");
    }

    QString home() const { return folder_.filePath("home"); }
    QString reporterFolder() const { return home() + QStringLiteral("/Library/Logs/CrashReporter/"); }
    QString diagnosticsFolder() const { return home() + QStringLiteral("/Library/Logs/DiagnosticReports/"); }
    void setSystemVersion(const QByteArray &version) const
    {
        put(folder_.filePath("root/etc/os-release"), "VERSION_ID=\"" + version + "\"\n");
    }
    void putSystemFile(const QString &path, const QByteArray &content) const
    {
        put(folder_.filePath("root") + path, content);
    }

    static void put(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        ASSERT_EQ(file.write(content), content.size());
    }
    /// With a date: seconds and nanoseconds since 1970.
    static void put(const QString &path, const QByteArray &content, qint64 seconds, long nanoseconds = 0)
    {
        put(path, content);
        setDate(path, seconds, nanoseconds);
    }
    static void setDate(const QString &path, qint64 seconds, long nanoseconds = 0)
    {
        const timespec dates[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
        ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), dates, AT_SYMLINK_NOFOLLOW), 0);
    }

    CapturedLog log;

private:
    QTemporaryDir folder_;
    QByteArray home_ = qgetenv("HOME");
    QByteArray configuration_ = qgetenv("XDG_CONFIG_HOME");
};
