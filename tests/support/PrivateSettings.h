#pragma once

#include "CapturedLog.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/system/SystemCalls.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// A settings folder of its own for each test, and the file in it as another process sees it. Fails a test that leaves
/// log lines it did not expect.
class PrivateSettings : public testing::Test
{
public:
    static inline const QString testDomain = QStringLiteral("com.example.test");

    explicit PrivateSettings(const QString &parent = QDir::tempPath())
        : temporary_(parent + QStringLiteral("/settings-XXXXXX"))
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(temporary_.filePath("config")));
    }
    ~PrivateSettings() override
    {
        systemCalls() = calls_;
        qputenv("XDG_CONFIG_HOME", previous_);
        EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
    }

    QString folder() const { return temporary_.filePath("config/lumaroo"); }
    QString path() const { return folder() + u'/' + testDomain + QStringLiteral(".plist"); }
    QString makeFolder(const QString &name) const
    {
        QDir().mkpath(temporary_.filePath(name));
        return temporary_.filePath(name);
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void putFile(const QByteArray &content) const
    {
        QDir().mkpath(folder());
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static struct stat statusOf(const QString &path)
    {
        struct stat status = {};
        EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
        return status;
    }

    /// What the file holds, and puts into it what another process would.
    QVariantMap stored() const { return readPropertyList(contentOf(path())).value.toMap(); }
    void store(const QVariantMap &values) const { putFile(writeBinaryPropertyList(values)); }

    static QVariantMap wholeDomain()
    {
        return NSUserDefaults::standardUserDefaults()->persistentDomainForName(testDomain);
    }
    static void replaceDomain(const QVariantMap &values)
    {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(values, testDomain);
    }

    CapturedLog log;

private:
    QTemporaryDir temporary_;
    QByteArray previous_ = qgetenv("XDG_CONFIG_HOME");
    SystemCalls calls_ = systemCalls();
};
