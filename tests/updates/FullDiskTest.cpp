#include "PublishedUpdates.h"
#include "updater/core/Installation.h"

#include <QDir>
#include <QFile>

// A full disk leaves the old bundle as it is.

using Kind = UpdateProblem::Kind;

namespace {

/// The bundle lies on a file system of 256 KiB.
class FullDisk : public PublishedUpdates
{
protected:
    FullDisk() : PublishedUpdates(qEnvironmentVariable("LUMAROO_SMALL_DISK")) { }

    QByteArray largeArchive(qsizetype size) const
    {
        QList<TarEntry> entries = entriesOf(101, keyInInfo());
        // Numbers, which do not compress to nothing.
        QByteArray content;
        while (content.size() < size)
            content += QByteArray::number(qHash(content.size()));
        entries += {"Sample.prefPane/Contents/Resources/large", TarEntry::File, content};
        return compressed(tarFile(entries), "xz");
    }
    void fill() const
    {
        QFile filler(path("filler"));
        ASSERT_TRUE(filler.open(QIODevice::Append | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'f')) == 4096) { }
    }
};

} // namespace

TEST_F(FullDisk, noRoomForTheArchive)
{
    const AppcastItem item = publish(101);
    fill();
    const UpdateProblem problem = download(item);
    EXPECT_EQ(problem.kind, Kind::Storage);
    EXPECT_EQ(problem.detail, "No space left on device");
    expectOldBundleAlone();
}

TEST_F(FullDisk, noRoomForTheBundle)
{
    const UpdateProblem problem = download(publish(101, largeArchive(300000)));
    EXPECT_EQ(problem.kind, Kind::Storage);
    EXPECT_TRUE(problem.detail.contains("No space left on device")) << problem.detail.toStdString();
    expectOldBundleAlone();
}

TEST_F(FullDisk, noRoomAtTheInstallationHasTheUpdateWait)
{
    prepare(101);
    fill();
    // What is unpacked already makes room for itself, but not for what has come since.
    QDir(places().unpacked()).removeRecursively();
    fill();
    const Installation installation = installWaitingUpdate(bundle());
    EXPECT_FALSE(installation.problem.isNone());
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_TRUE(places().aside().isEmpty());
    ASSERT_TRUE(waitingUpdate(places()));
    ASSERT_TRUE(QFile::remove(path("filler")));
    EXPECT_EQ(installWaitingUpdate(bundle()).version, "101");
    EXPECT_EQ(wholeVersion(), 101);
}

TEST_F(FullDisk, theRoomOfWhatIsUnpackedIsEnoughToInstall)
{
    prepare(101);
    fill();
    EXPECT_EQ(installWaitingUpdate(bundle()).version, "101");
    EXPECT_EQ(wholeVersion(), 101);
}
