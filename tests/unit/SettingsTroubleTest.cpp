#include "PrivateSettings.h"
#include "SystemCallFaults.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/PreferencesTrouble.h"

#include <QObject>
#include <sys/file.h>

// What the store tells of settings that it cannot keep, for whoever shows it to the user.

namespace {

using Cause = PreferencesTrouble::Cause;
using Extent = PreferencesTrouble::Extent;

class SettingsTrouble : public PrivateSettings
{
protected:
    SettingsTrouble()
    {
        const auto hear = [this](QStringList &heard) {
            return [&heard](const NSNotification &notification) { heard += notification.object.toString(); };
        };
        NSNotificationCenter *const centre = NSNotificationCenter::defaultCenter();
        centre->addObserverSelectorNameObject(
            &observer_, hear(troublesHeardOf), PreferencesTroubleDidChangeNotification);
        centre->addObserverSelectorNameObject(&observer_, hear(filesHeardOf), PreferencesFileWasKeptAsideNotification);
    }

    void SetUp() override { store({{"key", "old"}}); }

    bool change(const char *value)
    {
        CFPreferencesSetAppValue("key", QString::fromLatin1(value), testDomain);
        const bool isStored = CFPreferencesAppSynchronize(testDomain);
        log.clear();
        return isStored;
    }

    /// What a failing rename with this error comes to.
    PreferencesTrouble troubleOf(int error)
    {
        failOnce(&SystemCalls::rename, 1, error);
        EXPECT_FALSE(change("new"));
        const QList<PreferencesTrouble> troubles = preferencesTroubles();
        EXPECT_EQ(troubles.size(), 1);
        return troubles.value(0);
    }

    QStringList troublesHeardOf;
    QStringList filesHeardOf;

private:
    QObject observer_;
};

} // namespace

TEST_F(SettingsTrouble, isNoneWhereEverythingIsStored)
{
    EXPECT_TRUE(change("new"));
    EXPECT_TRUE(preferencesTroubles().isEmpty());
    EXPECT_FALSE(hasPreferencesTrouble(testDomain));
    EXPECT_TRUE(retryPreferences());
    EXPECT_EQ(troublesHeardOf, QStringList());
}

TEST_F(SettingsTrouble, hasACauseThatAUserCanPutInOrder)
{
    const QHash<int, Cause> causes{{ENOSPC, Cause::FullDisk}, {EDQUOT, Cause::FullDisk}, {EROFS, Cause::ReadOnlyDisk},
        {EACCES, Cause::NoPermission}, {EPERM, Cause::NoPermission}, {EIO, Cause::Other}};
    for (auto entry = causes.begin(); entry != causes.end(); ++entry) {
        const PreferencesTrouble trouble = troubleOf(entry.key());
        EXPECT_EQ(trouble.cause, entry.value()) << entry.key();
        EXPECT_EQ(trouble.extent, Extent::NotStored);
        EXPECT_EQ(trouble.path, path());
        EXPECT_TRUE(trouble.detail.startsWith("rename: ")) << trouble.detail.toStdString();
        EXPECT_TRUE(change("old"));
    }
}

TEST_F(SettingsTrouble, isToldOnceWhenItBeginsAndOnceWhenItIsOver)
{
    const SystemCalls intact = systemCalls();
    systemCalls().rename = [](const char *, const char *) { return errno = ENOSPC, -1; };
    EXPECT_FALSE(change("new"));
    EXPECT_FALSE(change("newer"));
    EXPECT_EQ(troublesHeardOf, QStringList(testDomain));
    EXPECT_TRUE(hasPreferencesTrouble(testDomain));
    systemCalls() = intact;
    EXPECT_TRUE(change("newest"));
    EXPECT_EQ(troublesHeardOf, QStringList({testDomain, testDomain}));
    EXPECT_FALSE(hasPreferencesTrouble(testDomain));
}

TEST_F(SettingsTrouble, isToldAgainWhereItBecomesAnother)
{
    troubleOf(ENOSPC);
    EXPECT_EQ(troubleOf(EROFS).cause, Cause::ReadOnlyDisk);
    EXPECT_EQ(troublesHeardOf.size(), 2);
}

TEST_F(SettingsTrouble, isOverWhenWhatWasChangedIsAsBefore)
{
    troubleOf(ENOSPC);
    EXPECT_TRUE(change("old"));
    EXPECT_TRUE(preferencesTroubles().isEmpty());
}

TEST_F(SettingsTrouble, isOverWhenARetryStoresWhatWasPending)
{
    troubleOf(ENOSPC);
    systemCalls().rename = [rename = systemCalls().rename](
                               const char *from, const char *to) { return rename(from, to); };
    EXPECT_TRUE(retryPreferences());
    EXPECT_EQ(stored(), (QVariantMap{{"key", "new"}}));
    EXPECT_EQ(troublesHeardOf.size(), 2);
}

TEST_F(SettingsTrouble, lastsWhereARetryFails)
{
    const SystemCalls intact = systemCalls();
    systemCalls().rename = [](const char *, const char *) { return errno = ENOSPC, -1; };
    EXPECT_FALSE(change("new"));
    EXPECT_FALSE(retryPreferences());
    EXPECT_EQ(preferencesTroubles().size(), 1);
    systemCalls() = intact;
    EXPECT_TRUE(retryPreferences());
}

TEST_F(SettingsTrouble, ofAFileWithoutPermissionIsThatNobodyCanTellWhatIsStored)
{
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::Permissions()));
    EXPECT_TRUE(wholeDomain().isEmpty());
    EXPECT_FALSE(change("new"));
    const PreferencesTrouble trouble = preferencesTroubles().value(0);
    EXPECT_EQ(trouble.cause, Cause::NoPermission);
    EXPECT_EQ(trouble.extent, Extent::Unreadable);
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_TRUE(retryPreferences());
    EXPECT_EQ(stored(), (QVariantMap{{"key", "old"}})) << "whoever set it had seen nothing there";
    log.clear();
}

TEST_F(SettingsTrouble, ofAFolderThatCannotBeSyncedIsThatTheChangeMayNotLast)
{
    failOnce(&SystemCalls::fsync, 2, EIO);
    EXPECT_FALSE(change("new"));
    EXPECT_EQ(preferencesTroubles().value(0).extent, Extent::NotSecured);
    EXPECT_TRUE(retryPreferences());
}

TEST_F(SettingsTrouble, ofAFileThatAnotherProcessKeepsSaysSo)
{
    systemCalls().flock = [](int, int) { return errno = EWOULDBLOCK, -1; };
    std::chrono::nanoseconds now{};
    systemCalls().monotonicTime = [&now] { return now; };
    systemCalls().sleep = [&now](std::chrono::nanoseconds duration) { now += duration; };
    EXPECT_FALSE(change("new"));
    EXPECT_EQ(preferencesTroubles().value(0).cause, Cause::Locked);
}

TEST_F(SettingsTrouble, ofTooMuchToStoreSaysSo)
{
    for (const char *key : {"one", "another"})
        CFPreferencesSetAppValue(key, QByteArray(40 * 1024 * 1024, 'x'), testDomain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    log.clear();
    EXPECT_EQ(preferencesTroubles().value(0).cause, Cause::TooLarge);
}

TEST_F(SettingsTrouble, ofOneFolderOfSettingsIsNoneOfAnother)
{
    troubleOf(ENOSPC);
    const QByteArray folder = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(makeFolder("other")));
    EXPECT_TRUE(preferencesTroubles().isEmpty());
    qputenv("XDG_CONFIG_HOME", folder);
    EXPECT_EQ(preferencesTroubles().size(), 1);
}

TEST_F(SettingsTrouble, aFileThatWasMovedAsideIsToldWithItsNewName)
{
    EXPECT_TRUE(change("new"));
    EXPECT_EQ(preferencesFilesKeptAside(), QStringList());
    putFile("garbage");
    EXPECT_TRUE(wholeDomain().isEmpty());
    log.clear();
    EXPECT_EQ(filesHeardOf, QStringList(testDomain));
    EXPECT_EQ(preferencesFilesKeptAside(), QStringList(path() + "~1"));
    putFile("more garbage");
    EXPECT_TRUE(change("newer"));
    EXPECT_EQ(filesHeardOf.size(), 2);
    EXPECT_EQ(preferencesFilesKeptAside(), QStringList(path() + "~2"));
}

TEST_F(SettingsTrouble, aFileThatAnotherProcessMovedAsideIsFound)
{
    EXPECT_TRUE(change("new"));
    for (const char *name : {"~3", "~12", "~x", ".backup"})
        ASSERT_TRUE(QFile::copy(path(), path() + QString::fromLatin1(name)));
    EXPECT_EQ(preferencesFilesKeptAside(), QStringList(path() + "~12"));
    EXPECT_EQ(filesHeardOf, QStringList());
}

TEST_F(SettingsTrouble, aDamagedFileThatCannotBeMovedAsideHidesWhatIsStored)
{
    putFile("garbage");
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_FALSE(change("new"));
    const PreferencesTrouble trouble = preferencesTroubles().value(0);
    EXPECT_EQ(trouble.cause, Cause::NoPermission);
    EXPECT_EQ(trouble.extent, Extent::Unreadable);
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(retryPreferences());
    EXPECT_EQ(stored(), (QVariantMap{{"key", "new"}}));
    log.clear();
}
