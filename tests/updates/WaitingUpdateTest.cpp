#include "UpdatableBundle.h"
#include "updater/core/InstalledBundle.h"
#include "updater/core/UpdatePermission.h"
#include "updater/core/linux/BundleExchange.h"
#include "updater/core/linux/SealedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>
#include <unistd.h>

// An archive that has come becomes an update that waits, or nothing at all.

using Kind = UpdateProblem::Kind;

namespace {

class WaitingUpdate : public UpdatableBundle
{
protected:
    /// Expects an archive to be refused, with nothing left of it.
    void expectRefused(const QByteArray &archive, const ExpectedUpdate &update, Kind kind, const QString &detail)
    {
        const UpdateProblem problem = prepare(archive, update);
        EXPECT_EQ(problem.kind, kind) << problem.detail.toStdString();
        EXPECT_EQ(problem.detail, detail);
        EXPECT_FALSE(waitingUpdate(places()));
        expectOldBundleAlone();
    }
    void expectContentsRefused(const QByteArray &archive, int version, const QString &detail)
    {
        expectRefused(archive, expected(archive, version), Kind::Contents, detail);
    }
    void expectNotSigned(const QByteArray &archive, const ExpectedUpdate &update)
    {
        expectRefused(archive, update, Kind::Signature, "the archive is not the one that was signed");
    }
    void replaceKeyInBundle(const QVariantMap &info) const
    {
        write(bundle() + "/Contents/Info.plist", entriesOf(100, info).at(2).content);
    }
};

} // namespace

TEST_F(WaitingUpdate, waitsVerifiedAndUnpackedBesideTheBundle)
{
    prepare(101);
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_EQ(beside(), QStringList(".Sample.prefPane.update"));
    EXPECT_EQ(wholeVersionAt(places().unpacked() + "/Sample.prefPane"), 101);
    const std::optional<ExpectedUpdate> waiting = waitingUpdate(places());
    ASSERT_TRUE(waiting);
    EXPECT_EQ(waiting->version, "101");
    EXPECT_EQ(waiting->displayVersion, "1.1");
    EXPECT_EQ(waiting->signature, key.signatureOf(contentOf(places().archive())));
}

TEST_F(WaitingUpdate, liesWhereNobodyElseMayLook)
{
    prepare(101);
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(places().waiting()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700u);
}

TEST_F(WaitingUpdate, takesThePlaceOfTheOneBefore)
{
    prepare(101);
    prepare(102);
    EXPECT_EQ(waitingUpdate(places())->version, "102");
    EXPECT_EQ(wholeVersionAt(places().unpacked() + "/Sample.prefPane"), 102);
}

TEST_F(WaitingUpdate, withAWrongSignatureIsNone)
{
    const QByteArray archive = archiveOf(101);
    ExpectedUpdate update = expected(archive, 101);
    update.signature[10] = char(update.signature[10] ^ 1);
    expectNotSigned(archive, update);
    update.signature = SigningKey::generated().signatureOf(archive);
    expectNotSigned(archive, update);
    update.signature.clear();
    expectNotSigned(archive, update);
}

TEST_F(WaitingUpdate, withTheRightSignatureOfAnotherFileIsNone)
{
    ExpectedUpdate update = expected(archiveOf(102), 101);
    update.length = archiveOf(101).size();
    expectNotSigned(archiveOf(101), update);
}

TEST_F(WaitingUpdate, ofAnotherLengthIsNone)
{
    const QByteArray archive = archiveOf(101);
    ExpectedUpdate update = expected(archive, 101);
    ++update.length;
    expectNotSigned(archive, update);
}

TEST_F(WaitingUpdate, isNotUnpackedBeforeItsSignatureIsVerified)
{
    const QByteArray archive = "no archive at all, for which the unpacking would find other words";
    ExpectedUpdate update = expected(archive, 101);
    update.signature = SigningKey::generated().signatureOf(archive);
    expectNotSigned(archive, update);
}

TEST_F(WaitingUpdate, thatIsOlderOrTheSameIsNone)
{
    expectContentsRefused(archiveOf(99), 99, "version 99 is not newer than 100, which is installed");
    expectContentsRefused(archiveOf(100), 100, "version 100 is not newer than 100, which is installed");
}

TEST_F(WaitingUpdate, thatHoldsAnotherVersionThanTheFeedSaidIsNone)
{
    expectContentsRefused(archiveOf(101), 102, "it holds version \"101\" instead of 102");
    // The version for people in the place of the bundle's.
    const QByteArray archive = archiveOf(101);
    ExpectedUpdate update = expected(archive, 101);
    update.version = "2026.1";
    expectRefused(archive, update, Kind::Contents, "it holds version \"101\" instead of 2026.1");
}

TEST_F(WaitingUpdate, ofAnotherProductIsNone)
{
    const QByteArray archive = archiveOf(101, {{"CFBundleIdentifier", "com.example.other"}});
    expectContentsRefused(archive, 101, "it holds \"com.example.other\" instead of com.example.sample");
}

TEST_F(WaitingUpdate, thatNeedsANewerPlatformIsNone)
{
    const QByteArray archive = archiveOf(101, {{"LMPlatformVersion", LUMAROO_PLATFORM_VERSION + 1LL}});
    expectContentsRefused(archive, 101,
        QString("it needs version %1 of the platform, and this is %2")
            .arg(LUMAROO_PLATFORM_VERSION + 1)
            .arg(LUMAROO_PLATFORM_VERSION));
}

TEST_F(WaitingUpdate, withoutCodeIsNone)
{
    for (const char *name : {"Absent", "../../Sample", ""})
        expectContentsRefused(archiveOf(101, {{"CFBundleExecutable", name}}), 101, "it holds no code");
}

TEST_F(WaitingUpdate, thatCannotBeUnpackedIsNone)
{
    const QByteArray archive = tarFile({{"Sample.prefPane/../../out", TarEntry::File, "x"}});
    const UpdateProblem problem = prepare(archive, expected(archive, 101));
    EXPECT_EQ(problem.kind, Kind::Archive);
    EXPECT_FALSE(waitingUpdate(places()));
    expectOldBundleAlone();
}

TEST_F(WaitingUpdate, isNoneForABundleWithoutAKey)
{
    for (const QVariantMap &info : {QVariantMap(), QVariantMap{{"SUPublicEDKey", ""}},
             QVariantMap{{"SUPublicEDKey", "too short"}}, QVariantMap{{"SUPublicEDKey", 7}}}) {
        replaceKeyInBundle(info);
        const UpdateProblem problem = prepare(archiveOf(101), expected(archiveOf(101), 101));
        EXPECT_EQ(problem.kind, Kind::NoKey) << problem.detail.toStdString();
        EXPECT_EQ(beside(), QStringList());
    }
}

TEST_F(WaitingUpdate, whoseArchiveIsALinkIsNone)
{
    write(path("elsewhere"), archiveOf(101));
    ASSERT_TRUE(beginWaitingUpdate(places()).isNone());
    ASSERT_TRUE(QFile::link(path("elsewhere"), places().archive()));
    EXPECT_EQ(completeWaitingUpdate(places(), expected(archiveOf(101), 101)).kind, Kind::Archive);
    EXPECT_TRUE(QFile::exists(path("elsewhere")));
    expectOldBundleAlone();
}

TEST_F(WaitingUpdate, withARecordThatDoesNotReadIsNone)
{
    prepare(101);
    for (const QByteArray &record : {QByteArray("damaged"), QByteArray(), QByteArray(100000, ' ')}) {
        write(places().record(), record);
        EXPECT_FALSE(waitingUpdate(places()));
    }
}

TEST_F(WaitingUpdate, isOnlyPreparedByOneProcessAtATime)
{
    const FolderLock lock(folder());
    EXPECT_TRUE(bool(lock));
    EXPECT_FALSE(bool(FolderLock(folder())));
}

TEST_F(WaitingUpdate, aCopyThatWasCheckedCannotBeChanged)
{
    write(path("file"), "checked");
    const SealedFile sealed = SealedFile::copyOf(path("file"), 100);
    ASSERT_TRUE(bool(sealed));
    QFile file(path("file"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write("REPLACE");
    file.close();
    write(path("file"), "another file");
    EXPECT_EQ(sealed.bytes(), "checked");
}

TEST_F(WaitingUpdate, aCopyIsMadeOfARegularFileOfTheRightSizeAlone)
{
    write(path("file"), "123456789");
    EXPECT_TRUE(bool(SealedFile::copyOf(path("file"), 9)));
    EXPECT_FALSE(bool(SealedFile::copyOf(path("file"), 8)));
    write(path("empty"), "");
    EXPECT_FALSE(bool(SealedFile::copyOf(path("empty"), 9)));
    EXPECT_FALSE(bool(SealedFile::copyOf(path("absent"), 9)));
    EXPECT_FALSE(bool(SealedFile::copyOf(folder(), 1 << 20)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    EXPECT_FALSE(bool(SealedFile::copyOf(path("pipe"), 9)));
}

TEST_F(WaitingUpdate, isRefusedToRoot)
{
    EXPECT_EQ(problemOfUpdating(bundle(), 0).kind, Kind::Superuser);
    EXPECT_TRUE(problemOfUpdating(bundle(), ::geteuid()).isNone());
}

TEST_F(WaitingUpdate, isRefusedForABundleThatThisUserCannotWrite)
{
    const QFile::Permissions readable = QFile::ReadOwner | QFile::ExeOwner;
    for (const QString &guarded : {bundle(), folder()}) {
        ASSERT_TRUE(QFile::setPermissions(guarded, readable));
        EXPECT_EQ(problemOfUpdating(bundle()).kind, Kind::NotWritable) << guarded.toStdString();
        ASSERT_TRUE(QFile::setPermissions(guarded, readable | QFile::WriteOwner));
    }
    EXPECT_EQ(problemOfUpdating(path("absent")).kind, Kind::NotWritable);
    EXPECT_EQ(problemOfUpdating("/usr/lib").kind, Kind::NotWritable);
}
