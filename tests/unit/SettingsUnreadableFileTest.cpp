#include "PrivateSettings.h"

// A file that cannot be read for a while: what nobody could see in it is still there afterwards.

class SettingsUnreadableFile : public PrivateSettings
{
protected:
    void SetUp() override
    {
        store({{"mine", 1}, {"theirs", 2}});
        makeReadable(false);
    }

    void makeReadable(bool readable) const
    {
        const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner;
        ASSERT_TRUE(QFile::setPermissions(path(), readable ? permissions : QFile::Permissions()));
    }
    /// Once the file can be read again: what is stored, and which keys a line says were kept as they were.
    void expectStoredAfterFlush(const QVariantMap &expected, const QString &kept)
    {
        EXPECT_EQ(log.linesContaining("cannot be read").size(), 1);
        log.clear();
        makeReadable(true);
        EXPECT_TRUE(isEqualPropertyList(wholeDomain(), expected)) << "before the flush";
        EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
        EXPECT_TRUE(isEqualPropertyList(stored(), expected)) << stored().keys().join(' ').toStdString();
        const QStringList lines = kept.isEmpty()
            ? QStringList()
            : QStringList{"lumaroo: settings: can be read again; what is stored stays for " + kept};
        EXPECT_EQ(log.lines(), lines);
        log.clear();
    }
};

TEST_F(SettingsUnreadableFile, keepsWhatIsStoredFromWhoSawNothingThere)
{
    EXPECT_TRUE(wholeDomain().isEmpty());
    CFPreferencesSetAppValue("mine", 7, testDomain);
    CFPreferencesSetAppValue("theirs", QVariant(), testDomain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_EQ(CFPreferencesCopyAppValue("mine", testDomain), QVariant(7)) << "meanwhile it is seen as it was set";
    expectStoredAfterFlush({{"mine", 1}, {"theirs", 2}}, "mine, theirs");
    EXPECT_EQ(CFPreferencesCopyAppValue("mine", testDomain), QVariant(1));
}

TEST_F(SettingsUnreadableFile, takesWhatWasSetWithoutALook)
{
    CFPreferencesSetAppValue("mine", 7, testDomain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    expectStoredAfterFlush({{"mine", 7}, {"theirs", 2}}, {});
}

TEST_F(SettingsUnreadableFile, takesWhatTheFileLacks)
{
    EXPECT_TRUE(wholeDomain().isEmpty());
    CFPreferencesSetAppValue("added", true, testDomain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    expectStoredAfterFlush({{"mine", 1}, {"theirs", 2}, {"added", true}}, {});
}

TEST_F(SettingsUnreadableFile, takesWhatIsSetAgainOnceItCanBeRead)
{
    EXPECT_TRUE(wholeDomain().isEmpty());
    CFPreferencesSetAppValue("mine", 7, testDomain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
    log.clear();
    makeReadable(true);
    EXPECT_EQ(wholeDomain().size(), 2);
    CFPreferencesSetAppValue("mine", 8, testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap{{"mine", 8}, {"theirs", 2}}));
}

TEST_F(SettingsUnreadableFile, keepsTheKeysThatAReplacementOfTheDomainDoesNotHave)
{
    QVariantMap domain = wholeDomain();
    domain.insert("mine", 7);
    domain.insert("added", true);
    replaceDomain(domain);
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), domain));
    expectStoredAfterFlush({{"mine", 1}, {"theirs", 2}, {"added", true}}, "mine");
}

TEST_F(SettingsUnreadableFile, losesNoKeyThatAReplacementTakesBack)
{
    CFPreferencesSetAppValue("added", true, testDomain);
    replaceDomain({{"more", 1.5}});
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"more", 1.5}}));
    expectStoredAfterFlush({{"mine", 1}, {"theirs", 2}, {"more", 1.5}}, {});
}
