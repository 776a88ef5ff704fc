#include "PrivateSettings.h"
#include "SystemCallFaults.h"

// A settings file that does not parse is kept for its owner and never overwritten.

class SettingsDamagedFile : public PrivateSettings
{
protected:
    void expectKeptAside(const QByteArray &content, int number, const QString &reason)
    {
        const QString file = testDomain + ".plist";
        const QString line = QStringLiteral("lumaroo: settings: %1 does not parse (%2); kept as %1~%3, starting empty");
        EXPECT_EQ(log.lines().join('\n').toStdString(), line.arg(file, reason).arg(number).toStdString());
        log.clear();
        EXPECT_TRUE(contentOf(path() + QStringLiteral("~%1").arg(number)) == content);
        EXPECT_FALSE(QFileInfo::exists(path()));
    }
};

TEST_F(SettingsDamagedFile, aFileOfGarbageIsKeptAsideAndLoggedOnce)
{
    putFile("garbage");
    EXPECT_FALSE(CFPreferencesCopyAppValue("key", testDomain).isValid());
    EXPECT_TRUE(wholeDomain().isEmpty());
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    expectKeptAside("garbage", 1, "byte 1");
}

TEST_F(SettingsDamagedFile, anEmptyFileIsKeptAside)
{
    putFile("");
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    expectKeptAside("", 1, "byte 0");
}

TEST_F(SettingsDamagedFile, aTornFileIsKeptAside)
{
    const QByteArray torn = writeBinaryPropertyList(QVariantMap{{"key", QString(100, u'x')}}).left(60);
    putFile(torn);
    EXPECT_TRUE(wholeDomain().isEmpty());
    EXPECT_TRUE(contentOf(path() + "~1") == torn);
    EXPECT_EQ(log.linesContaining("does not parse (byte").size(), 1);
    log.clear();
}

TEST_F(SettingsDamagedFile, aPropertyListThatIsNoDictionaryIsKeptAside)
{
    const QByteArray list = writeBinaryPropertyList(QVariantList{1, 2});
    putFile(list);
    EXPECT_TRUE(wholeDomain().isEmpty());
    expectKeptAside(list, 1, "it holds no dictionary");
}

TEST_F(SettingsDamagedFile, aFileOf65MiBIsKeptAside)
{
    putFile("");
    ASSERT_TRUE(QFile::resize(path(), 65 * 1024 * 1024));
    EXPECT_TRUE(wholeDomain().isEmpty());
    EXPECT_EQ(QFileInfo(path() + "~1").size(), 65 * 1024 * 1024);
    EXPECT_EQ(log.linesContaining("does not parse (larger than 64 MiB)").size(), 1);
    log.clear();
}

TEST_F(SettingsDamagedFile, noFileKeptAsideIsEverOverwritten)
{
    for (int number = 1; number <= 12; ++number) {
        const QByteArray garbage = "garbage " + QByteArray::number(number);
        putFile(garbage);
        EXPECT_TRUE(wholeDomain().isEmpty());
        expectKeptAside(garbage, number, "byte 1");
    }
    EXPECT_EQ(contentOf(path() + "~1"), "garbage 1");
}

TEST_F(SettingsDamagedFile, whatIsPendingIsWrittenToANewFileBesideIt)
{
    CFPreferencesSetAppValue("key", 1, testDomain);
    putFile("garbage");
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    EXPECT_EQ(contentOf(path() + "~1"), "garbage");
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"key", 1}}));
}

TEST_F(SettingsDamagedFile, aReplacementOfTheDomainKeepsItToo)
{
    putFile("garbage");
    replaceDomain({{"key", 1}});
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    EXPECT_EQ(contentOf(path() + "~1"), "garbage");
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"key", 1}}));
}

TEST_F(SettingsDamagedFile, aFileThatIsPutInOrderBeforeTheLockIsReadAgain)
{
    putFile("garbage");
    systemCalls().flock = [this, original = systemCalls().flock](int descriptor, int operation) {
        store({{"key", 1}});
        return original(descriptor, operation);
    };
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    EXPECT_FALSE(QFileInfo::exists(path() + "~1"));
}

TEST_F(SettingsDamagedFile, oneThatCannotBeMovedAsideIsNotOverwritten)
{
    putFile("garbage");
    const auto everything = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
    CFPreferencesSetAppValue("key", 1, testDomain);
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"key", 1}}));
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(log.linesContaining("cannot be moved aside").size(), 1);
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    ASSERT_TRUE(QFile::setPermissions(folder(), everything));
    EXPECT_EQ(contentOf(path()), "garbage");
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(contentOf(path() + "~1"), "garbage");
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"key", 1}}));
    log.clear();
}

TEST_F(SettingsDamagedFile, aFailingRenameLeavesItWhereItIs)
{
    putFile("garbage");
    failOnce(&SystemCalls::renameWithoutReplacing, 1, EIO);
    EXPECT_TRUE(wholeDomain().isEmpty());
    EXPECT_EQ(contentOf(path()), "garbage");
    EXPECT_EQ(log.linesContaining("cannot be moved aside").size(), 1);
    log.clear();
}

TEST_F(SettingsDamagedFile, behindALinkTheFileIsKeptAsideAndTheLinkStays)
{
    const QString elsewhere = makeFolder("elsewhere");
    putFile("garbage");
    ASSERT_TRUE(QFile::rename(path(), elsewhere + "/settings"));
    ASSERT_TRUE(QFile::link(elsewhere + "/settings", path()));
    CFPreferencesSetAppValue("key", 1, testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    EXPECT_EQ(contentOf(elsewhere + "/settings~1"), "garbage");
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"key", 1}}));
}
