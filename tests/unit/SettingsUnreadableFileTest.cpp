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
    void expectStoredAfterFlush(const QVariantMap &expected)
    {
        EXPECT_EQ(log.linesContaining("cannot be read").size(), 1);
        log.clear();
        makeReadable(true);
        EXPECT_TRUE(CFPreferencesAppSynchronize(Domain));
        EXPECT_TRUE(isEqualPropertyList(stored(), expected)) << stored().keys().join(' ').toStdString();
    }
};

TEST_F(SettingsUnreadableFile, keepsTheKeysThatAReplacementOfTheDomainDoesNotHave)
{
    QVariantMap domain = wholeDomain();
    domain.insert("mine", 7);
    replaceDomain(domain);
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"mine", 7}}));
    expectStoredAfterFlush({{"mine", 7}, {"theirs", 2}});
}

TEST_F(SettingsUnreadableFile, losesNoKeyThatAReplacementTakesBack)
{
    CFPreferencesSetAppValue("added", true, Domain);
    replaceDomain({{"more", 1.5}});
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), QVariantMap{{"more", 1.5}}));
    expectStoredAfterFlush({{"mine", 1}, {"theirs", 2}, {"more", 1.5}});
}
