#include "PrivateSettings.h"
#include "SystemCallFaults.h"
#include "Wait.h"

#include <QDateTime>

// How settings are read and written as long as nothing goes wrong.

class SettingsStore : public PrivateSettings
{
};

TEST_F(SettingsStore, aDomainThatWasNeverWrittenIsEmpty)
{
    EXPECT_FALSE(CFPreferencesCopyAppValue("key", testDomain).isValid());
    EXPECT_TRUE(wholeDomain().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(path()));
}

TEST_F(SettingsStore, aWriteIsSeenAtOnceByThisProcessAndInTheFileAfterTheFlush)
{
    CFPreferencesSetAppValue("key", "value", testDomain);
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain), QVariant("value"));
    EXPECT_EQ(wholeDomain(), (QVariantMap{{"key", "value"}}));
    EXPECT_FALSE(QFileInfo::exists(path()));
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(stored(), (QVariantMap{{"key", "value"}}));
}

TEST_F(SettingsStore, aRemovalIsSeenAtOnceAndInTheFileAfterTheFlush)
{
    store({{"key", 1}, {"other", 2}});
    CFPreferencesSetAppValue("key", QVariant(), testDomain);
    EXPECT_FALSE(CFPreferencesCopyAppValue("key", testDomain).isValid());
    EXPECT_FALSE(wholeDomain().contains("key"));
    EXPECT_TRUE(stored().contains("key"));
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(stored().keys(), QStringList("other"));
}

TEST_F(SettingsStore, fileAndFoldersBelongToTheUserAlone)
{
    CFPreferencesSetAppValue("key", 1, testDomain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(statusOf(path()).st_mode & 07777, 0600u);
    EXPECT_EQ(statusOf(folder()).st_mode & 07777, 0700u);
}

TEST_F(SettingsStore, theFileIsABinaryPropertyListAndNothingButSideFilesStandBesideIt)
{
    CFPreferencesSetAppValue("key", 1, testDomain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(contentOf(path()).startsWith("bplist00"));
    EXPECT_EQ(QDir(folder()).entryList(QDir::Files), QStringList(QFileInfo(path()).fileName()));
}

TEST_F(SettingsStore, anXMLFileIsReadAndBecomesBinaryWithTheFirstChange)
{
    putFile(writeXMLPropertyList(QVariantMap{{"key", 1}}));
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    CFPreferencesSetAppValue("other", 2, testDomain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(contentOf(path()).startsWith("bplist00"));
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"key", 1}, {"other", 2}}));
}

TEST_F(SettingsStore, anUnflushedWriteStandsAboveWhatAnotherProcessWrites)
{
    CFPreferencesSetAppValue("mine", 1, testDomain);
    store({{"mine", 7}, {"theirs", 8}});
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"mine", 1}, {"theirs", 8}}));
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"mine", 1}, {"theirs", 8}}));
}

TEST_F(SettingsStore, aFlushAppliesOnlyWhatThisProcessChanged)
{
    store({{"a", 1}, {"b", 1}});
    EXPECT_EQ(wholeDomain().size(), 2);
    CFPreferencesSetAppValue("a", 2, testDomain);
    store({{"b", 3}, {"c", 3}});
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"a", 2}, {"b", 3}, {"c", 3}}));
}

TEST_F(SettingsStore, aFlushedWriteIsNotAppliedAgain)
{
    CFPreferencesSetAppValue("key", 1, testDomain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    store({{"key", 2}});
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(stored().value("key").toInt(), 2);
}

TEST_F(SettingsStore, replacingTheDomainDropsWhatIsNotInTheNewOne)
{
    store({{"theirs", 1}, {"both", 1}});
    CFPreferencesSetAppValue("pending", 1, testDomain);
    CFPreferencesSetAppValue("both", 5, testDomain);
    replaceDomain({{"both", 2}});
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"both", 2}}));
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"both", 2}}));
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"both", 2}}));
}

TEST_F(SettingsStore, aDomainCanBeReplacedByAnEmptyOne)
{
    store({{"key", 1}});
    replaceDomain({});
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_TRUE(wholeDomain().isEmpty());
}

TEST_F(SettingsStore, aWriteAfterAReplacementComesOnTopOfIt)
{
    replaceDomain({{"a", 1}});
    CFPreferencesSetAppValue("b", 2, testDomain);
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"a", 1}, {"b", 2}}));
}

TEST_F(SettingsStore, anEqualValueDoesNotTouchTheFile)
{
    store({{"key", 1}, {"list", QVariantList{1.5, "x"}}});
    const struct stat before = statusOf(path());
    CFPreferencesSetAppValue("key", 1, testDomain);
    CFPreferencesSetAppValue("list", QVariantList{1.5, "x"}, testDomain);
    CFPreferencesSetAppValue("absent", QVariant(), testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    replaceDomain(stored());
    EXPECT_EQ(statusOf(path()).st_ino, before.st_ino);
    EXPECT_EQ(statusOf(path()).st_mtim.tv_nsec, before.st_mtim.tv_nsec);
}

TEST_F(SettingsStore, anotherTypeIsAChange)
{
    store({{"key", 1}});
    CFPreferencesSetAppValue("key", true, testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored().value("key"), true));
    CFPreferencesSetAppValue("key", 1.0f, testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored().value("key"), 1.0f));
    CFPreferencesSetAppValue("key", 1.0, testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored().value("key"), 1.0));
}

TEST_F(SettingsStore, aFloatIsStoredInFourBytesAndKeepsItsExactValue)
{
    CFPreferencesSetAppValue("key", 0.1f, testDomain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(contentOf(path()).contains(QByteArray::fromHex("223dcccccd")));
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).typeId(), QMetaType::Float);
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toFloat(), 0.1f);
}

TEST_F(SettingsStore, aSymbolicLinkAtThePathIsFollowedAndKept)
{
    const QString elsewhere = makeFolder("elsewhere");
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link("../../elsewhere/settings", folder() + "/second"));
    ASSERT_TRUE(QFile::link("second", path()));
    CFPreferencesSetAppValue("key", 1, testDomain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_FALSE(QFileInfo(elsewhere + "/settings").isSymLink());
    EXPECT_TRUE(readPropertyList(contentOf(elsewhere + "/settings")));
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
}

TEST_F(SettingsStore, aRelativeConfigurationFolderCountsAsNone)
{
    qputenv("XDG_CONFIG_HOME", "somewhere");
    CFPreferencesSetAppValue("key", 1, "com.example.relative");
    ASSERT_TRUE(CFPreferencesAppSynchronize("com.example.relative"));
    EXPECT_TRUE(QFile::remove(QDir::homePath() + "/.config/lumaroo/com.example.relative.plist"));
    EXPECT_FALSE(QFileInfo::exists("somewhere"));
}

TEST_F(SettingsStore, theConfigurationFolderOfThisMomentCounts)
{
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    CFPreferencesSetAppValue("key", 1, testDomain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(makeFolder("another")));
    EXPECT_FALSE(CFPreferencesCopyAppValue("key", testDomain).isValid());
    qputenv("XDG_CONFIG_HOME", before);
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
}

TEST_F(SettingsStore, aNameThatWouldLeaveTheFolderIsRefused)
{
    for (const QString &name : {QString(), QString(".."), QString("../escape"), QString("a/b"), QString("/etc/passwd"),
             QString(".hidden"), QString("a\nb"), QString(1, QChar(0)), QString(300, u'x')}) {
        log.clear();
        CFPreferencesSetAppValue("key", 1, name);
        EXPECT_EQ(log.lines().size(), 1) << name.toStdString();
        EXPECT_FALSE(CFPreferencesAppSynchronize(name));
        EXPECT_FALSE(CFPreferencesCopyAppValue("key", name).isValid());
        EXPECT_TRUE(NSUserDefaults::standardUserDefaults()->persistentDomainForName(name).isEmpty());
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({{"key", 1}}, name);
    }
    log.clear();
    EXPECT_FALSE(QFileInfo::exists(folder()));
}

TEST_F(SettingsStore, whatIsNoPropertyListValueIsLoggedAndChangesNothing)
{
    store({{"key", 1}});
    CFPreferencesSetAppValue("key", QRect(0, 0, 1, 1), testDomain);
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    replaceDomain({{"key", QVariant()}});
    EXPECT_EQ(log.linesContaining("no property").size(), 2);
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"key", 1}}));
    log.clear();
}

TEST_F(SettingsStore, filesThatWereReplacedAreNotKeptOpen)
{
    const auto deletedFiles = [] {
        qsizetype count = 0;
        for (const QFileInfo &descriptor : QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System))
            count += descriptor.symLinkTarget().endsWith(" (deleted)");
        return count;
    };
    runPendingEvents();
    const qsizetype before = deletedFiles();
    for (int round = 0; round < 10; ++round) {
        CFPreferencesSetAppValue("key", round, testDomain);
        ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    }
    EXPECT_LE(deletedFiles(), before + 1) << "one waits for the run loop";
    runPendingEvents();
    EXPECT_EQ(deletedFiles(), before);
}
