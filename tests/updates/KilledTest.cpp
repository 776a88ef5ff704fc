#include "KilledAtCalls.h"
#include "UpdatableBundle.h"
#include "updater/core/Installation.h"
#include "updater/core/linux/BundleExchange.h"

#include <QDir>
#include <QFile>

// A process that is killed at any stage of an update leaves the old or the new bundle, whole, and the next run gets
// through.

namespace {

class KilledUpdate : public UpdatableBundle
{
protected:
    /// Has the old bundle stand there again, alone.
    void beginAgain()
    {
        for (const QString &name : beside())
            QDir(folder() + '/' + name).removeRecursively();
        for (const TarEntry &entry : entriesOf(100, keyInInfo())) {
            if (entry.kind == TarEntry::File)
                write(folder() + '/' + entry.path, entry.content);
        }
        ASSERT_EQ(wholeVersion(), 100);
    }
};

} // namespace

TEST_F(KilledUpdate, duringAnInstallationTheBundleIsTheOldOrTheNewOne)
{
    int old = 0;
    int exchanged = 0;
    prepare(101);
    const int killings = killAtEachCall([this] { installWaitingUpdate(bundle()); },
        [&] {
            const int version = wholeVersion();
            ASSERT_TRUE(version == 100 || version == 101) << version;
            ++(version == 100 ? old : exchanged);
            // Whoever comes next finishes it, whatever is left.
            installWaitingUpdate(bundle());
            removeWhatIsOver(bundle());
            ASSERT_EQ(wholeVersion(), 101);
            ASSERT_EQ(beside(), QStringList());
            beginAgain();
            prepare(101);
        });
    EXPECT_EQ(wholeVersion(), 101);
    EXPECT_GT(killings, 30);
    EXPECT_GT(old, 0);
    EXPECT_GT(exchanged, 0);
}

TEST_F(KilledUpdate, duringThePreparationTheBundleIsTheOldOneAndNothingWaits)
{
    const QByteArray archive = archiveOf(101);
    const ExpectedUpdate update = expected(archive, 101);
    const int killings = killAtEachCall([&] { prepare(archive, update); },
        [&] {
            ASSERT_EQ(wholeVersion(), 100);
            ASSERT_FALSE(waitingUpdate(places())) << "the record comes last";
            removeWhatIsOver(bundle());
            ASSERT_EQ(beside(), QStringList());
            beginAgain();
        });
    EXPECT_TRUE(waitingUpdate(places()));
    EXPECT_GT(killings, 15);
}

TEST_F(KilledUpdate, whileOldBundlesAreRemovedTheBundleIsTheNewOne)
{
    prepare(101);
    ASSERT_EQ(installWaitingUpdate(bundle()).version, "101");
    const int killings = killAtEachCall([this] { removeWhatIsOver(bundle()); },
        [&] {
            ASSERT_EQ(wholeVersion(), 101);
            removeWhatIsOver(bundle());
            ASSERT_EQ(beside(), QStringList());
            beginAgain();
            prepare(101);
            ASSERT_EQ(installWaitingUpdate(bundle()).version, "101");
        });
    EXPECT_GT(killings, 5);
    EXPECT_EQ(beside(), QStringList());
}
