#include "PublishedUpdates.h"
#include "Wait.h"
#include "updater/core/Appcast.h"
#include "updater/core/Installation.h"
#include "updater/core/UpdatePreparation.h"
#include "updater/core/linux/BundleExchange.h"

#include <QDir>
#include <QFile>

// From the feed's item to an update that waits, over a real server.

using Kind = UpdateProblem::Kind;

namespace {

class Preparation : public PublishedUpdates
{
protected:
    void expectRefused(const AppcastItem &item, Kind kind)
    {
        const UpdateProblem problem = download(item);
        EXPECT_EQ(problem.kind, kind) << problem.detail.toStdString();
        expectOldBundleAlone();
        EXPECT_EQ(log.linesContaining("is not prepared: " + problem.detail).size(), 1);
        log.clear();
    }
};

} // namespace

TEST_F(Preparation, hasTheUpdateWaitAndThenBeInstalled)
{
    const UpdateProblem problem = download(publish(101));
    EXPECT_TRUE(problem.isNone()) << problem.detail.toStdString();
    EXPECT_EQ(wholeVersion(), 100);
    ASSERT_TRUE(waitingUpdate(places()));
    EXPECT_EQ(installWaitingUpdate(bundle()).version, "101");
    EXPECT_EQ(wholeVersion(), 101);
}

TEST_F(Preparation, tellsHowFarItIs)
{
    const AppcastItem item = publish(101);
    UpdatePreparation preparation(bundle(), item, feed());
    QStringList said;
    QObject::connect(&preparation, &UpdatePreparation::progressed, [&](qint64 received, qint64 total) {
        EXPECT_EQ(total, item.length);
        if (received == total)
            said += "all";
    });
    QObject::connect(&preparation, &UpdatePreparation::downloaded, [&] { said += "downloaded"; });
    QObject::connect(&preparation, &UpdatePreparation::finished, [&] { said += "finished"; });
    preparation.start();
    ASSERT_TRUE(waitUntil([&] { return said.contains("finished"); }));
    EXPECT_EQ(said, (QStringList{"all", "downloaded", "finished"}));
}

TEST_F(Preparation, refusesAnArchiveWithAWrongSignature)
{
    AppcastItem item = publish(101);
    item.signature = SigningKey::generated().signatureOf(archiveOf(101));
    expectRefused(item, Kind::Signature);
}

TEST_F(Preparation, refusesAnotherArchiveThatIsSignedToo)
{
    AppcastItem item = publish(101);
    item.archive = publish(102).archive;
    item.length = publish(102).length;
    expectRefused(item, Kind::Signature);
}

TEST_F(Preparation, refusesAnOlderVersionUnderANewNumber)
{
    AppcastItem item = publish(99);
    item.version = "101";
    expectRefused(item, Kind::Contents);
}

TEST_F(Preparation, refusesAnArchiveOfAnotherLength)
{
    AppcastItem item = publish(101);
    ++item.length;
    expectRefused(item, Kind::Download);
    item.length -= 2;
    expectRefused(item, Kind::Download);
}

TEST_F(Preparation, refusesAnArchiveOnAnotherHost)
{
    const WebServer other(std::nullopt, QFileInfo(served("x")).path());
    AppcastItem item = publish(101);
    item.archive = other.url(item.archive.path());
    item.archive.setHost("localhost");
    expectRefused(item, Kind::Download);
    EXPECT_TRUE(other.requests().isEmpty());
}

TEST_F(Preparation, refusesAnArchiveThatIsCutOffOrNeverStops)
{
    AppcastItem item = publish(101);
    for (const char *path : {"/cut-off-body", "/cut-off", "/endless", "/404"}) {
        item.archive = server.url(path);
        expectRefused(item, Kind::Download);
    }
}

TEST_F(Preparation, leavesNothingWhenItIsCancelledDuringTheDownload)
{
    AppcastItem item = publish(101);
    item.archive = server.url("/endless");
    item.length = largestUpdateArchive;
    UpdatePreparation preparation(bundle(), item, feed());
    bool hasBegun = false;
    QObject::connect(&preparation, &UpdatePreparation::progressed, [&] { hasBegun = true; });
    QObject::connect(&preparation, &UpdatePreparation::finished, [] { ADD_FAILURE(); });
    preparation.start();
    ASSERT_TRUE(waitUntil([&] { return hasBegun; }));
    EXPECT_EQ(beside(), QStringList(".Sample.prefPane.update"));
    preparation.cancel();
    expectOldBundleAlone();
    runPendingEvents();
}

TEST_F(Preparation, leavesNothingWhenItIsCancelledDuringTheUnpacking)
{
    UpdatePreparation preparation(bundle(), publish(101), feed());
    bool isCancelled = false;
    QObject::connect(&preparation, &UpdatePreparation::downloaded, [&] { isCancelled = true; });
    QObject::connect(&preparation, &UpdatePreparation::finished, [] { ADD_FAILURE(); });
    preparation.start();
    ASSERT_TRUE(waitUntil([&] { return isCancelled; }));
    preparation.cancel();
    expectOldBundleAlone();
    EXPECT_TRUE(bool(FolderLock(folder()))) << "others may update now";
}

TEST_F(Preparation, isRefusedWhileAnotherProcessUpdates)
{
    prepare(102);
    const FolderLock lock(folder());
    EXPECT_EQ(download(publish(101)).kind, Kind::Busy);
    EXPECT_EQ(waitingUpdate(places())->version, "102") << "what waits is the other's";
}

TEST_F(Preparation, isRefusedForABundleThatThisUserCannotWrite)
{
    const AppcastItem item = publish(101);
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
    expectRefused(item, Kind::NotWritable);
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner));
    EXPECT_TRUE(server.requests().isEmpty());
}
