#include "updater/core/UpdateChoice.h"

#include <gtest/gtest.h>

// Which version of a feed is offered.

namespace {

AppcastItem version(const QString &number)
{
    AppcastItem item;
    item.version = number;
    item.archive = QUrl("https://updates.example/a");
    return item;
}

class Choice : public testing::Test
{
protected:
    UpdateCircumstances here{.installedVersion = "100",
        .highestVersionSeen = {},
        .skippedVersion = {},
        .systemVersion = "6.1.0",
        .platformVersion = 1,
        .channels = {},
        .isAskedByUser = false};

    QString offered(const QList<AppcastItem> &items) const
    {
        const UpdateChoice choice = chooseUpdate(items, here);
        return choice.item ? choice.item->version : QString();
    }
    bool isOffered(const AppcastItem &item) const { return offered({item}) == item.version; }
};

} // namespace

TEST_F(Choice, isTheNewestWhereverItStands)
{
    EXPECT_EQ(offered({version("101"), version("103"), version("102")}), "103");
    EXPECT_EQ(offered({}), QString());
}

TEST_F(Choice, isNeverTheInstalledVersionOrAnOlderOne)
{
    EXPECT_EQ(offered({version("100"), version("99"), version("100.0")}), QString());
    here.isAskedByUser = true;
    EXPECT_EQ(offered({version("100"), version("99")}), QString());
}

TEST_F(Choice, isNoVersionForAnotherSystem)
{
    AppcastItem item = version("101");
    item.operatingSystem = "macos";
    EXPECT_FALSE(isOffered(item));
    item.operatingSystem = "Linux";
    EXPECT_TRUE(isOffered(item));
}

TEST_F(Choice, isNoVersionForANewerKernel)
{
    AppcastItem item = version("101");
    item.minimumSystemVersion = "6.2";
    EXPECT_FALSE(isOffered(item));
    item.minimumSystemVersion = "6.1";
    EXPECT_TRUE(isOffered(item));
    item.minimumSystemVersion = "any";
    EXPECT_FALSE(isOffered(item));
}

TEST_F(Choice, isNoVersionForANewerPlatform)
{
    AppcastItem item = version("102");
    item.minimumPlatformVersion = 2;
    EXPECT_EQ(offered({item, version("101")}), "101");
    here.platformVersion = 2;
    EXPECT_EQ(offered({item, version("101")}), "102");
}

TEST_F(Choice, isNoVersionOfAChannelThatIsNotFollowed)
{
    AppcastItem item = version("102");
    item.channel = "beta";
    EXPECT_EQ(offered({item, version("101")}), "101");
    here.channels = QStringList("beta");
    EXPECT_EQ(offered({item, version("101")}), "102");
}

TEST_F(Choice, isNoSkippedVersionUnlessTheUserAsks)
{
    here.skippedVersion = "102";
    EXPECT_EQ(offered({version("101"), version("102")}), QString());
    EXPECT_EQ(offered({version("103"), version("102")}), "103");
    here.isAskedByUser = true;
    EXPECT_EQ(offered({version("101"), version("102")}), "102");
}

TEST_F(Choice, isASkippedVersionThatIsCriticalHere)
{
    here.skippedVersion = "102";
    AppcastItem item = version("102");
    item.isCritical = true;
    EXPECT_TRUE(isOffered(item));
    item.criticalBelow = "100";
    EXPECT_FALSE(isOffered(item));
    item.criticalBelow = "101";
    EXPECT_TRUE(isOffered(item));
}

TEST_F(Choice, isNothingOfAFeedThatHasGoneBack)
{
    here.highestVersionSeen = "103";
    const UpdateChoice back = chooseUpdate({version("102"), version("101")}, here);
    EXPECT_TRUE(back.hasGoneBack);
    EXPECT_FALSE(back.item);
    EXPECT_EQ(back.highestVersion, "103");
    EXPECT_TRUE(chooseUpdate({}, here).hasGoneBack);
    const UpdateChoice again = chooseUpdate({version("103"), version("104")}, here);
    EXPECT_FALSE(again.hasGoneBack);
    EXPECT_EQ(again.highestVersion, "104");
}

TEST_F(Choice, remembersTheHighestVersionAlsoOfWhatDoesNotRunHere)
{
    AppcastItem item = version("200");
    item.operatingSystem = "macos";
    const UpdateChoice choice = chooseUpdate({version("101"), item}, here);
    EXPECT_EQ(choice.highestVersion, "200");
    EXPECT_EQ(choice.item->version, "101");
}

TEST_F(Choice, isToldOnlyWhereItIsInformationalForTheInstalledVersion)
{
    AppcastItem item = version("101");
    EXPECT_FALSE(isInformationalFor(item, "100"));
    item.isInformational = true;
    EXPECT_TRUE(isInformationalFor(item, "100"));
    item.informationalFor = QStringList("99");
    EXPECT_FALSE(isInformationalFor(item, "100"));
    EXPECT_TRUE(isInformationalFor(item, "99"));
    item.informationalBelow = "101";
    EXPECT_TRUE(isInformationalFor(item, "100"));
    item.informationalBelow.clear();
    item.archive.clear();
    EXPECT_TRUE(isInformationalFor(item, "100"));
}
