#include "platform/foundation/propertylists/NSNumber.h"

#include <gtest/gtest.h>

TEST(NSNumber, aBooleanIsItsOwnTruth)
{
    EXPECT_TRUE(boolValue(true));
    EXPECT_FALSE(boolValue(false));
}

TEST(NSNumber, aNumberIsTrueUnlessItIsZero)
{
    EXPECT_TRUE(boolValue(qlonglong(-1)));
    EXPECT_TRUE(boolValue(0.5f));
    EXPECT_FALSE(boolValue(qlonglong(0)));
    EXPECT_FALSE(boolValue(0.0));
}

TEST(NSNumber, aTextIsTrueWhenItBeginsWithADigitOrALetterOfConsent)
{
    for (const char *text : {"1", "YES", "yes", "true", "T", " +007", "-3"})
        EXPECT_TRUE(boolValue(QString::fromLatin1(text))) << text;
    for (const char *text : {"", "0", "000", "no", "false", "x1", "- 1"})
        EXPECT_FALSE(boolValue(QString::fromLatin1(text))) << text;
}

TEST(NSNumber, whatIsNoNumberIsFalseAndZero)
{
    for (const QVariant &value : {QVariant(), QVariant(QByteArray("1")), QVariant(QVariantList{true}),
             QVariant(QVariantMap{{QStringLiteral("1"), 1}}), QVariant(QDateTime::currentDateTime())}) {
        EXPECT_FALSE(boolValue(value));
        EXPECT_EQ(floatValue(value), 0);
    }
}

TEST(NSNumber, aFloatKeepsItsExactValue)
{
    EXPECT_EQ(floatValue(0.1f), 0.1f);
    EXPECT_EQ(floatValue(0.25), 0.25f);
    EXPECT_EQ(floatValue(qlonglong(-7)), -7);
    EXPECT_EQ(floatValue(true), 1);
}

TEST(NSNumber, aTextGivesTheNumberItBeginsWith)
{
    EXPECT_EQ(floatValue(QStringLiteral("2.5 keys")), 2.5f);
    EXPECT_EQ(floatValue(QStringLiteral("  -1e2")), -100);
    EXPECT_EQ(floatValue(QStringLiteral(".5")), 0.5f);
    EXPECT_EQ(floatValue(QStringLiteral("keys")), 0);
    EXPECT_EQ(floatValue(QString()), 0);
}
