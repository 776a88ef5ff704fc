// The launcher with a stand-in for the settings application; with the real one it is tested as a whole program.

#include "TestBundle.h"
#include "Wait.h"

#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

const QString paneBundle = QStringLiteral("/some where/Lumaroo.prefPane");

class Launcher : public testing::Test
{
protected:
    Launcher() : bundle(QStringLiteral("Sample.app"))
    {
        bundle.writeScript(QStringLiteral("host"), "printf '%s\\n' \"$@\" \"[$LUMAROO_HOST_EXECUTABLE]\"\n");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LUMAROO_HOST_EXECUTABLE"), host());
        process.setProcessEnvironment(environment);
    }

    QString host() const { return bundle.path() + QStringLiteral("/host"); }

    void start(const QStringList &arguments)
    {
        process.start(
            qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane/Contents/Resources/launcher"),
            arguments);
        ASSERT_TRUE(process.waitForStarted());
    }

    int exitStatus()
    {
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        return process.exitCode();
    }

    QStringList output() { return QString::fromUtf8(process.readAllStandardOutput()).trimmed().split(u'\n'); }

    TestBundle bundle;
    QProcess process;
};

} // namespace

TEST_F(Launcher, opensTheSettingsWithThePaneAtTheEndOfItsInput)
{
    start({paneBundle, QStringLiteral("No")});
    EXPECT_EQ(exitStatus(), 0);
    EXPECT_EQ(output(), (QStringList{paneBundle, QStringLiteral("[]")}));
}

TEST_F(Launcher, waitsUntilTheEndHoweverMuchIsWritten)
{
    start({paneBundle, QStringLiteral("Yes")});
    process.write(QByteArray(1000000, 'x'));
    ASSERT_TRUE(waitUntil([this] { return process.bytesToWrite() == 0; })) << "it reads all the while";
    EXPECT_EQ(process.state(), QProcess::Running);
    EXPECT_EQ(process.bytesAvailable(), 0);
    EXPECT_EQ(exitStatus(), 0);
    EXPECT_EQ(output().first(), paneBundle);
}

TEST_F(Launcher, saysWhatItDoesOnlyWhenAskedTo)
{
    start({paneBundle, QStringLiteral("No")});
    EXPECT_EQ(exitStatus(), 0);
    EXPECT_EQ(process.readAllStandardError(), QByteArray());
    start({paneBundle, QStringLiteral("Yes")});
    EXPECT_EQ(exitStatus(), 0);
    const QStringList lines = QString::fromUtf8(process.readAllStandardError()).trimmed().split(u'\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].endsWith(QStringLiteral("waiting for %1 to end").arg(host())));
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral("opening %1 with %2").arg(host(), paneBundle)));
}

TEST_F(Launcher, failsWithoutTwoArguments)
{
    start({paneBundle});
    EXPECT_EQ(exitStatus(), 1);
    EXPECT_TRUE(process.readAllStandardError().contains("two arguments are needed"));
}

TEST_F(Launcher, failsWhenNobodyNamesTheSettingsApplication)
{
    process.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    start({paneBundle, QStringLiteral("No")});
    EXPECT_EQ(exitStatus(), 1);
}

TEST_F(Launcher, failsWhenTheSettingsApplicationIsGone)
{
    ASSERT_TRUE(QFile::remove(host()));
    start({paneBundle, QStringLiteral("No")});
    EXPECT_EQ(exitStatus(), 1);
}
