// The host has a bundle's own installer see to what stands beside it.

#include "CapturedLog.h"
#include "RunningPrograms.h"
#include "TestBundle.h"
#include "Wait.h"
#include "host/WaitingUpdates.h"
#include "platform/foundation/bundles/BesideBundle.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

namespace {

class ABundleWithAnInstaller : public testing::Test
{
protected:
    void SetUp() override { letInstaller("echo \"$@\" >\"$1/installed\"\n"); }

    void letInstaller(const QByteArray &script) const { sample.writeScript("Contents/Resources/installer", script); }
    QString path() const { return QFileInfo(sample.path()).canonicalFilePath(); }
    void putBeside(const QString &what) const { ASSERT_TRUE(QDir().mkdir(pathBesideBundle(path(), what))); }
    QByteArray installed() const
    {
        QFile file(path() + "/installed");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    TestBundle sample{"Sample.prefPane"};
    CapturedLog log;
};

} // namespace

TEST_F(ABundleWithAnInstaller, hasItRunWithItsPathWhereSomethingStandsBeside)
{
    for (const char *what : {"update", "aside-abcdef"}) {
        putBeside(what);
        finishUpdates({path()});
        EXPECT_EQ(installed(), path().toUtf8() + "\n") << what;
        ASSERT_TRUE(QFile::remove(path() + "/installed"));
        ASSERT_TRUE(QDir().rmdir(pathBesideBundle(path(), what)));
    }
}

TEST_F(ABundleWithAnInstaller, isLeftAloneWhereNothingStandsBeside)
{
    QDir folder = QFileInfo(path()).dir();
    for (const char *name : {"Sample.prefPane.update", ".Sample", ".Other.prefPane.update", ".update"})
        ASSERT_TRUE(folder.mkdir(name)) << name;
    finishUpdates({path()});
    EXPECT_EQ(installed(), "");
}

TEST_F(ABundleWithAnInstaller, isNotWaitedForForever)
{
    letInstaller("echo $$ >\"$1/installed\"\nexec \"$LUMAROO_BUILD/tests/programs/idle\"\n");
    putBeside("update");
    finishUpdates({path()}, std::chrono::seconds(3));
    const pid_t installer = installed().trimmed().toInt();
    ASSERT_GT(installer, 0);
    EXPECT_FALSE(processRuns(installer));
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(ABundleWithAnInstaller, thatCannotBeRunIsUsedAsItIs)
{
    putBeside("update");
    letInstaller("exit 1\n");
    finishUpdates({path()});
    ASSERT_TRUE(QFile::remove(path() + "/Contents/Resources/installer"));
    finishUpdates({path()});
    sample.writeFile("Contents/Resources/installer", "no program");
    finishUpdates({path(), path() + "-that-is-not-there"});
    EXPECT_EQ(log.lines().size(), 0);
    QFile::setPermissions(path() + "/Contents/Resources/installer", QFile::ReadOwner | QFile::ExeOwner);
    finishUpdates({path()});
    EXPECT_EQ(log.lines().size(), 1);
}
