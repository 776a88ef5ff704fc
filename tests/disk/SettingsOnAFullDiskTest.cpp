#include "PrivateSettings.h"

// The settings lie on a disk of 256 KiB, which is full.

class SettingsOnAFullDisk : public PrivateSettings
{
protected:
    SettingsOnAFullDisk() : PrivateSettings(qEnvironmentVariable("LUMAROO_SMALL_DISK")) { }

    void SetUp() override
    {
        ASSERT_TRUE(qEnvironmentVariableIsSet("LUMAROO_SMALL_DISK"));
        CFPreferencesSetAppValue("key", "old", testDomain);
        ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    }

    void fillTheDisk()
    {
        filler_.setFileName(makeFolder("filler") + "/file");
        ASSERT_TRUE(filler_.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler_.write(QByteArray(4096, 'x')) > 0) { }
    }
    void clearTheDisk() { filler_.remove(); }

private:
    QFile filler_;
};

TEST_F(SettingsOnAFullDisk, theOldFileStaysWholeAndTheChangesWaitUntilThereIsRoom)
{
    fillTheDisk();
    const QByteArray before = contentOf(path());
    CFPreferencesSetAppValue("key", "new", testDomain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(log.linesContaining("No space left on device").size(), 1);
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    EXPECT_EQ(contentOf(path()), before);
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain), QVariant("new"));
    clearTheDisk();
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(stored(), (QVariantMap{{"key", "new"}}));
}

TEST_F(SettingsOnAFullDisk, aReplacementOfTheDomainWaitsUntilThereIsRoom)
{
    fillTheDisk();
    replaceDomain({{"other", "new"}});
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    EXPECT_EQ(stored(), (QVariantMap{{"key", "old"}}));
    EXPECT_EQ(wholeDomain(), (QVariantMap{{"other", "new"}}));
    clearTheDisk();
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(stored(), (QVariantMap{{"other", "new"}}));
}

TEST_F(SettingsOnAFullDisk, settingsLargerThanTheDiskStayPending)
{
    CFPreferencesSetAppValue("large", QByteArray(300 * 1024, 'x'), testDomain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    EXPECT_EQ(stored(), (QVariantMap{{"key", "old"}}));
    CFPreferencesSetAppValue("large", QVariant(), testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
}
