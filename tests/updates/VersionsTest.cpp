#include "updater/core/Versions.h"

#include <gtest/gtest.h>

// Which of two bundle versions is the newer one.

TEST(Versions, countByValueAndNotByText)
{
    EXPECT_TRUE(isNewer("100", "99"));
    EXPECT_TRUE(isNewer("1.10", "1.9"));
    EXPECT_TRUE(isNewer("2", "1.9.9"));
    EXPECT_TRUE(isNewer("1.0.1", "1"));
    EXPECT_FALSE(isNewer("100", "100"));
    EXPECT_FALSE(isNewer("99", "100"));
}

TEST(Versions, areTheSameWithZerosMoreOrLess)
{
    EXPECT_EQ(compareVersions("1", "1.0.0"), 0);
    EXPECT_EQ(compareVersions("007", "7"), 0);
    EXPECT_EQ(compareVersions("0", "0.0"), 0);
}

TEST(Versions, withLettersComeBeforeTheSameWithout)
{
    EXPECT_TRUE(isNewer("12", "12b"));
    EXPECT_TRUE(isNewer("12b", "11"));
    EXPECT_TRUE(isNewer("12b", "12a9"));
    EXPECT_TRUE(isNewer("12b10", "12b9"));
}

TEST(Versions, mayHaveMoreDigitsThanAnIntegerHolds)
{
    EXPECT_TRUE(isNewer("99999999999999999999999999", "99999999999999999999999998"));
    EXPECT_TRUE(isNewer("99999999999999999999999999", "2147483648"));
}

TEST(Versions, ofAnotherFormAreOlderThanAll)
{
    for (const char *text : {"", "b12", "1..2", "1.", "-1", "1 ", " 1", "1.2-rc", "1\n", "\xc3\xa9", "１", "12B"}) {
        EXPECT_FALSE(isBundleVersion(text)) << text;
        EXPECT_TRUE(isNewer("0", text)) << text;
        EXPECT_FALSE(isNewer(text, "0")) << text;
        EXPECT_EQ(compareVersions(text, text), 0) << text;
    }
    EXPECT_TRUE(isBundleVersion(QString(64, u'1')));
    EXPECT_FALSE(isBundleVersion(QString(65, u'1')));
}
