#include "updater/core/Installation.h"
#include "TestApplication.h"
#include "UpdatableBundle.h"
#include "updater/core/linux/BundleExchange.h"
#include "updater/core/linux/MappedFiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>

// A waiting update takes the bundle's place.

using Kind = UpdateProblem::Kind;

namespace {

class InstallationOfAnUpdate : public UpdatableBundle
{
protected:
    void expectInstalled(int version)
    {
        const Installation installation = installWaitingUpdate(bundle());
        EXPECT_TRUE(installation.problem.isNone()) << installation.problem.detail.toStdString();
        EXPECT_EQ(installation.version, QString::number(version));
        EXPECT_EQ(wholeVersion(), version);
        EXPECT_FALSE(waitingUpdate(places()));
    }
    void expectNotInstalled(Kind kind, bool waitsOn)
    {
        const Installation installation = installWaitingUpdate(bundle());
        EXPECT_EQ(installation.problem.kind, kind) << installation.problem.detail.toStdString();
        EXPECT_EQ(wholeVersion(), 100);
        EXPECT_TRUE(places().aside().isEmpty());
        EXPECT_EQ(waitingUpdate(places()).has_value(), waitsOn);
    }
    QString onlyAside() const
    {
        EXPECT_EQ(places().aside().size(), 1);
        return places().aside().value(0);
    }
};

} // namespace

TEST_F(InstallationOfAnUpdate, hasTheNewBundleStandWhereTheOldOneDid)
{
    prepare(101);
    expectInstalled(101);
    EXPECT_EQ(wholeVersionAt(onlyAside() + "/Sample.prefPane"), 100);
}

TEST_F(InstallationOfAnUpdate, doesNothingWhereNothingWaits)
{
    const Installation installation = installWaitingUpdate(bundle());
    EXPECT_TRUE(installation.problem.isNone());
    EXPECT_EQ(installation.version, QString());
    expectOldBundleAlone();
    EXPECT_EQ(installWaitingUpdate(path("absent")).version, QString());
}

TEST_F(InstallationOfAnUpdate, leavesNothingBesideTheBundleOnceTheOldOneIsOver)
{
    prepare(101);
    expectInstalled(101);
    removeWhatIsOver(bundle());
    EXPECT_EQ(beside(), QStringList());
    EXPECT_EQ(wholeVersion(), 101);
}

TEST_F(InstallationOfAnUpdate, keepsTheOldBundleForAsLongAsItsCodeRuns)
{
    QProcess running;
    ASSERT_TRUE(QFile::remove(bundle() + "/Contents/Resources/text"));
    ASSERT_TRUE(QFile::copy(TestApplication::idleProgram(), bundle() + "/Contents/Resources/text"));
    running.start(bundle() + "/Contents/Resources/text", QStringList());
    ASSERT_TRUE(running.waitForStarted());
    prepare(101);
    expectInstalled(101);
    const QString aside = onlyAside();
    EXPECT_TRUE(isMappedByAnyProcess(aside));
    removeWhatIsOver(bundle());
    EXPECT_TRUE(QFile::exists(aside + "/Sample.prefPane/Contents/Info.plist"));
    running.kill();
    ASSERT_TRUE(running.waitForFinished());
    removeWhatIsOver(bundle());
    EXPECT_EQ(beside(), QStringList());
}

TEST_F(InstallationOfAnUpdate, keepsTheOldBundleForAsLongAsAFileOfItIsMapped)
{
    prepare(101);
    QFile library(bundle() + "/Contents/Linux/Sample");
    ASSERT_TRUE(library.open(QIODevice::ReadOnly));
    uchar *mapped = library.map(0, library.size());
    ASSERT_NE(mapped, nullptr);
    expectInstalled(101);
    removeWhatIsOver(bundle());
    EXPECT_EQ(wholeVersionAt(onlyAside() + "/Sample.prefPane"), 100);
    library.unmap(mapped);
    removeWhatIsOver(bundle());
    EXPECT_TRUE(places().aside().isEmpty());
}

TEST_F(InstallationOfAnUpdate, verifiesTheArchiveAgain)
{
    prepare(101);
    QFile archive(places().archive());
    ASSERT_TRUE(archive.open(QIODevice::ReadWrite));
    ASSERT_TRUE(archive.seek(600) && archive.write("?") == 1);
    archive.close();
    expectNotInstalled(Kind::Signature, false);
    EXPECT_EQ(beside(), QStringList());
}

TEST_F(InstallationOfAnUpdate, isGivenUpForGoodWithoutItsArchive)
{
    for (const char *damage : {"gone", "empty", "a folder"}) {
        prepare(101);
        ASSERT_TRUE(QFile::remove(places().archive()));
        if (damage == QByteArray("empty"))
            write(places().archive(), "");
        if (damage == QByteArray("a folder")) {
            ASSERT_TRUE(QDir().mkdir(places().archive()));
        }
        expectNotInstalled(Kind::Archive, false);
        EXPECT_EQ(beside(), QStringList()) << damage;
    }
}

TEST_F(InstallationOfAnUpdate, waitsOnWhileItsArchiveCannotBeRead)
{
    prepare(101);
    ASSERT_TRUE(QFile::setPermissions(places().archive(), QFile::Permissions()));
    expectNotInstalled(Kind::Storage, true);
    ASSERT_TRUE(QFile::setPermissions(places().archive(), QFile::ReadOwner));
    expectInstalled(101);
}

TEST_F(InstallationOfAnUpdate, isVerifiedBeforehandAndThenStillWaits)
{
    prepare(101);
    EXPECT_TRUE(verifyWaitingUpdate(bundle()).isNone());
    {
        const FolderLock lock(folder());
        EXPECT_EQ(verifyWaitingUpdate(bundle()).kind, Kind::Busy);
    }
    EXPECT_TRUE(waitingUpdate(places()));
    expectInstalled(101);
    EXPECT_EQ(verifyWaitingUpdate(bundle()).kind, Kind::Archive) << "nothing waits any more";
}

TEST_F(InstallationOfAnUpdate, isRemovedBeforehandWhereItIsNotGenuine)
{
    prepare(101);
    write(places().archive(), "something else");
    EXPECT_EQ(verifyWaitingUpdate(bundle()).kind, Kind::Signature);
    expectOldBundleAlone();
}

TEST_F(InstallationOfAnUpdate, goesByTheArchiveAndNotByWhatWasUnpackedOfIt)
{
    prepare(101);
    write(places().unpacked() + "/Sample.prefPane/Contents/Linux/Sample", "something else");
    expectInstalled(101);
}

TEST_F(InstallationOfAnUpdate, goesByTheKeyOfWhatIsInstalledThen)
{
    prepare(101);
    const SigningKey other = SigningKey::generated();
    write(bundle() + "/Contents/Info.plist",
        entriesOf(100, {{"SUPublicEDKey", QString::fromLatin1(other.publicKey())}}).at(2).content);
    expectNotInstalled(Kind::Signature, false);
}

TEST_F(InstallationOfAnUpdate, isNoDowngradeOfWhatWasInstalledMeanwhile)
{
    prepare(101);
    for (const TarEntry &entry : entriesOf(102, keyInInfo())) {
        if (entry.kind == TarEntry::File)
            write(folder() + '/' + entry.path, entry.content);
    }
    const Installation installation = installWaitingUpdate(bundle());
    EXPECT_EQ(installation.problem.kind, Kind::Contents);
    EXPECT_EQ(wholeVersion(), 102);
    EXPECT_EQ(beside(), QStringList());
}

TEST_F(InstallationOfAnUpdate, waitsOnWhileAnotherProcessUpdates)
{
    prepare(101);
    FolderLock lock(folder());
    expectNotInstalled(Kind::Busy, true);
    removeWhatIsOver(bundle());
    EXPECT_TRUE(waitingUpdate(places()));
    lock.release();
    expectInstalled(101);
}

TEST_F(InstallationOfAnUpdate, waitsOnWhileTheBundleCannotBeWritten)
{
    prepare(101);
    const QFile::Permissions readable = QFile::ReadOwner | QFile::ExeOwner;
    ASSERT_TRUE(QFile::setPermissions(bundle(), readable));
    expectNotInstalled(Kind::NotWritable, true);
    ASSERT_TRUE(QFile::setPermissions(bundle(), readable | QFile::WriteOwner));
    expectInstalled(101);
}

TEST_F(InstallationOfAnUpdate, followsALinkToTheBundle)
{
    prepare(101);
    ASSERT_TRUE(QFile::link(bundle(), path("Link.prefPane")));
    EXPECT_EQ(installWaitingUpdate(path("Link.prefPane")).version, "101");
    EXPECT_EQ(wholeVersion(), 101);
    EXPECT_TRUE(QFileInfo(path("Link.prefPane")).isSymLink());
}

TEST_F(InstallationOfAnUpdate, canBeDoneAgainAndAgain)
{
    for (int version = 101; version < 104; ++version) {
        prepare(version);
        expectInstalled(version);
    }
    EXPECT_EQ(places().aside().size(), 3);
    removeWhatIsOver(bundle());
    EXPECT_EQ(beside(), QStringList());
}

TEST_F(InstallationOfAnUpdate, removesADownloadThatWasNotCompleted)
{
    ASSERT_TRUE(beginWaitingUpdate(places()).isNone());
    write(places().archive(), "half");
    removeWhatIsOver(bundle());
    expectOldBundleAlone();
    prepare(101);
    removeWhatIsOver(bundle());
    EXPECT_TRUE(waitingUpdate(places())) << "a complete one waits on";
}

TEST_F(InstallationOfAnUpdate, leavesOthersFoldersAlone)
{
    QDir().mkpath(folder() + "/.Other.prefPane.aside-123456/x");
    QDir().mkpath(folder() + "/.Sample.prefPane.mine");
    ASSERT_TRUE(QFile::link("/usr", folder() + "/.Sample.prefPane.aside-link"));
    removeWhatIsOver(bundle());
    EXPECT_EQ(beside().size(), 3);
}

TEST_F(InstallationOfAnUpdate, knowsAMappedFileInAFolderOfAnyName)
{
    const QString odd = path("od\n d");
    write(odd + "/file", "mapped");
    QFile file(odd + "/file");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(isMappedByAnyProcess(odd));
    ASSERT_NE(file.map(0, file.size()), nullptr);
    EXPECT_TRUE(isMappedByAnyProcess(odd));
    EXPECT_FALSE(isMappedByAnyProcess(path("od"))) << "the name alone is the start of another";
}
