#include "PrivateSettings.h"
#include "SystemCallFaults.h"

#include <sys/file.h>

// What happens to settings when the system refuses: nothing is lost, nothing is torn, one line is logged.

class SettingsFaults : public PrivateSettings
{
protected:
    const QVariantMap old{{"key", "old"}, {"theirs", 1}};
    const QVariantMap changed{{"key", "new"}, {"theirs", 1}};

    void SetUp() override
    {
        store(old);
        CFPreferencesSetAppValue("key", "new", testDomain);
    }

    void expectRefused()
    {
        EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
        EXPECT_EQ(log.lines().size(), 1) << log.lines().join('\n').toStdString();
        EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain), QVariant("new"));
        log.clear();
    }
    void expectOldFile() { EXPECT_TRUE(isEqualPropertyList(stored(), old)); }
    void expectSaved()
    {
        EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
        EXPECT_TRUE(isEqualPropertyList(stored(), changed));
        EXPECT_EQ(log.lines(), QStringList());
        EXPECT_EQ(QDir(folder()).entryList(QDir::Files), QStringList(QFileInfo(path()).fileName()));
        EXPECT_FALSE(QFileInfo::exists(folder() + "/." + testDomain + ".plist.new"));
    }
    void expectRefusedThenSaved()
    {
        expectRefused();
        expectOldFile();
        expectSaved();
    }
};

TEST_F(SettingsFaults, aFailingWriteLeavesTheOldFile)
{
    failOnce(&SystemCalls::write, 1, EIO);
    expectRefusedThenSaved();
}

TEST_F(SettingsFaults, aFailingSyncOfTheFileLeavesTheOldFile)
{
    failOnce(&SystemCalls::fsync, 1, EIO);
    expectRefusedThenSaved();
}

TEST_F(SettingsFaults, aFailingRenameLeavesTheOldFile)
{
    failOnce(&SystemCalls::rename, 1, EIO);
    expectRefusedThenSaved();
}

TEST_F(SettingsFaults, aFailingSyncOfTheFolderIsReportedAndDoneAgain)
{
    int syncs = 0;
    failOnce(&SystemCalls::fsync, 2, EIO);
    observe(&SystemCalls::fsync, [&syncs] { ++syncs; });
    expectRefused();
    EXPECT_TRUE(isEqualPropertyList(stored(), changed));
    EXPECT_EQ(syncs, 2);
    expectSaved();
    EXPECT_EQ(syncs, 3);
}

TEST_F(SettingsFaults, aFileSystemThatCannotSyncFoldersIsNoFailure)
{
    failOnce(&SystemCalls::fsync, 2, EINVAL);
    expectSaved();
}

TEST_F(SettingsFaults, aFailureOfAnySingleCallLosesNothing)
{
    const auto failures = [](int occurrence) {
        return QList<std::function<void()>>{
            [=] { failOnce(&SystemCalls::open, occurrence, EMFILE); },
            [=] { failToCloseOnce(occurrence, EIO); },
            [=] { failOnce(&SystemCalls::pread, occurrence, EIO); },
            [=] { failOnce(&SystemCalls::write, occurrence, ENOSPC); },
            [=] { failOnce(&SystemCalls::fsync, occurrence, EIO); },
            [=] { failOnce(&SystemCalls::flock, occurrence, ENOLCK); },
            [=] { failOnce(&SystemCalls::fstat, occurrence, EIO); },
            [=] { failOnce(&SystemCalls::stat, occurrence, EIO); },
            [=] { failOnce(&SystemCalls::readlink, occurrence, EIO); },
            [=] { failOnce(&SystemCalls::rename, occurrence, EIO); },
            [=] { failOnce(&SystemCalls::unlink, occurrence, EIO); },
            [=] { failOnce(&SystemCalls::mkdir, occurrence, EIO); },
        };
    };
    const SystemCalls intact = systemCalls();
    int refusals = 0;
    for (int occurrence = 1; occurrence <= 8; ++occurrence) {
        for (const std::function<void()> &inject : failures(occurrence)) {
            store(old);
            CFPreferencesSetAppValue("key", "new", testDomain);
            inject();
            const bool saved = CFPreferencesAppSynchronize(testDomain);
            systemCalls() = intact;
            EXPECT_TRUE(isEqualPropertyList(stored(), changed) || (!saved && isEqualPropertyList(stored(), old)));
            EXPECT_EQ(log.lines().size(), saved ? 0 : 1);
            log.clear();
            expectSaved();
            refusals += !saved;
        }
    }
    EXPECT_GE(refusals, 12);
}

TEST_F(SettingsFaults, aFailingCloseOfTheNewFileLeavesTheOldFile)
{
    // The file just written is the one that was opened last before.
    int newFile = -1;
    systemCalls().open = [&newFile, original = systemCalls().open](const char *path, int flags, mode_t mode) {
        const int descriptor = original(path, flags, mode);
        if (flags & O_EXCL)
            newFile = descriptor;
        return descriptor;
    };
    systemCalls().close = [&newFile, original = systemCalls().close](int descriptor) {
        original(descriptor);
        errno = EIO;
        return descriptor == std::exchange(newFile, -1) ? -1 : 0;
    };
    expectRefused();
    expectOldFile();
}

TEST_F(SettingsFaults, aWriteInPortionsAndInterruptedIsCompleted)
{
    int calls = 0;
    systemCalls().write = [&calls, original = systemCalls().write](
                              int descriptor, const void *bytes, size_t size) -> ssize_t {
        if (++calls % 2) {
            errno = EINTR;
            return -1;
        }
        return original(descriptor, bytes, std::min(size, size_t(3)));
    };
    expectSaved();
    EXPECT_GT(calls, 10);
}

TEST_F(SettingsFaults, aReadOnlyFolderKeepsEverythingPending)
{
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
    expectRefused();
    expectOldFile();
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    expectSaved();
}

TEST_F(SettingsFaults, aFileWithoutPermissionIsNeitherReadNorReplaced)
{
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::Permissions()));
    expectRefused();
    EXPECT_FALSE(CFPreferencesCopyAppValue("theirs", testDomain).isValid());
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner));
    expectOldFile();
    expectSaved();
}

TEST_F(SettingsFaults, aFolderWhereTheFileShouldBeIsLeftAlone)
{
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QDir().mkpath(path() + "/something"));
    expectRefused();
    EXPECT_TRUE(QFileInfo(path() + "/something").isDir());
    ASSERT_TRUE(QDir(path()).removeRecursively());
    store(old);
    expectSaved();
}

TEST_F(SettingsFaults, aPipeWhereTheFileShouldBeDoesNotMakeUsWait)
{
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_EQ(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    expectRefused();
    ASSERT_TRUE(QFile::remove(path()));
    store(old);
    expectSaved();
}

TEST_F(SettingsFaults, aFileWhereTheFolderShouldBeKeepsEverythingPending)
{
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    QFile file(folder());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    expectRefused();
    ASSERT_TRUE(file.remove());
    store(old);
    expectSaved();
}

TEST_F(SettingsFaults, aLinkThatLeadsInACircleIsReported)
{
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QFile::link(path(), path()));
    expectRefused();
    ASSERT_TRUE(QFile::remove(path()));
    store(old);
    expectSaved();
}

TEST_F(SettingsFaults, theSameProblemIsLoggedOnceUntilSomethingSucceeds)
{
    const SystemCalls intact = systemCalls();
    systemCalls().rename = [](const char *, const char *) { return errno = EROFS, -1; };
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(log.lines(),
        QStringList("lumaroo: settings: com.example.test.plist cannot be written (rename: Read-only file system); "
                    "changes wait for the "
                    "next attempt"));
    log.clear();
    systemCalls() = intact;
    expectSaved();
    CFPreferencesSetAppValue("key", "newer", testDomain);
    systemCalls().rename = [](const char *, const char *) { return errno = EROFS, -1; };
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
}

TEST_F(SettingsFaults, aReplacementThatFailsStaysPendingAsAWhole)
{
    failOnce(&SystemCalls::fsync, 1, EIO);
    replaceDomain({{"only", 1}});
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    expectOldFile();
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"only", 1}}));
    EXPECT_FALSE(CFPreferencesCopyAppValue("key", testDomain).isValid());
    CFPreferencesSetAppValue("later", 2, testDomain);
    store({{"theirs", 3}});
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"only", 1}, {"later", 2}}));
}

TEST_F(SettingsFaults, aLockThatIsNeverReleasedIsWaitedForTwoSecondsAndReported)
{
    const QByteArray lockPath = QFile::encodeName(folder() + "/." + testDomain + ".plist.lock");
    const int held = open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(flock(held, LOCK_EX), 0);
    std::chrono::nanoseconds now{};
    systemCalls().monotonicTime = [&now] { return now; };
    systemCalls().sleep = [&now](std::chrono::nanoseconds duration) { now += duration; };
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_GE(now, std::chrono::seconds(2));
    EXPECT_LT(now, std::chrono::milliseconds(2100));
    EXPECT_EQ(log.linesContaining("another process keeps it locked").size(), 1);
    log.clear();
    expectOldFile();
    close(held);
    expectSaved();
}

TEST_F(SettingsFaults, aFlushWithNothingChangedMakesNoCallThatWrites)
{
    expectSaved();
    const auto writingCalls = countWritingCalls();
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    CFPreferencesSetAppValue("key", "new", testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    replaceDomain(changed);
    EXPECT_EQ(wholeDomain(), stored());
    EXPECT_EQ(*writingCalls, 0);
    CFPreferencesSetAppValue("key", "newer", testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_GT(*writingCalls, 0);
}

TEST_F(SettingsFaults, aFlushOfADomainThatDoesNotExistCreatesNothing)
{
    const auto writingCalls = countWritingCalls();
    EXPECT_TRUE(CFPreferencesAppSynchronize("com.example.absent"));
    EXPECT_EQ(*writingCalls, 0);
    expectSaved();
}
