#include "platform/foundation/propertylists/Description.h"

#include <QDateTime>
#include <gtest/gtest.h>
#include <limits>

TEST(Description, ofNoValueIsNull)
{
    EXPECT_EQ(description({}), "(null)");
}

TEST(Description, ofATextIsTheTextItself)
{
    EXPECT_EQ(description("two words, \"quoted\" \u2318"), "two words, \"quoted\" \u2318");
    EXPECT_EQ(description(""), "");
}

TEST(Description, ofNumbersAndBooleansAreTheirDigits)
{
    EXPECT_EQ(description(true), "1");
    EXPECT_EQ(description(false), "0");
    EXPECT_EQ(description(-7), "-7");
    EXPECT_EQ(description(std::numeric_limits<qint64>::min()), "-9223372036854775808");
    EXPECT_EQ(description(0.5), "0.5");
    EXPECT_EQ(description(0.1F), "0.1");
    EXPECT_EQ(description(2.0), "2");
}

TEST(Description, ofDataIsHexadecimalInGroupsOfFourBytes)
{
    EXPECT_EQ(description(QByteArray()), "<>");
    EXPECT_EQ(description(QByteArray("\x01\x02\x03\x04")), "<01020304>");
    EXPECT_EQ(description(QByteArray("\x01\x02\x03\x04\xff")), "<01020304 ff>");
}

TEST(Description, ofADateIsInUniversalTime)
{
    const QDateTime date(QDate(2001, 2, 3), QTime(5, 5, 6), Qt::OffsetFromUTC, 3600);
    EXPECT_EQ(description(date), "2001-02-03 04:05:06 +0000");
}

TEST(Description, ofADictionaryHasSortedKeysAndFourBlanksALevel)
{
    const QVariantMap map{{"b", QVariantList{1, "two words"}}, {"a", QVariantMap{{"inner", true}}}, {"A", "plain"}};
    EXPECT_EQ(description(map),
        "{\n"
        "    A = plain;\n"
        "    a = {\n"
        "        inner = 1;\n"
        "    };\n"
        "    b = (\n"
        "        1,\n"
        "        \"two words\"\n"
        "    );\n"
        "}");
}

TEST(Description, ofEmptyContainersIsTwoLines)
{
    EXPECT_EQ(description(QVariantMap()), "{\n}");
    EXPECT_EQ(description(QVariantList()), "(\n)");
    EXPECT_EQ(description(QVariantMap{{"empty", QVariantMap()}}), "{\n    empty = {\n    };\n}");
}

TEST(Description, putsTextsThatAreNoPlainWordsIntoQuotationMarks)
{
    const QVariantList texts{"Word1", "two words", "", "com.quorvane.Lumaroo", "a\"b\\c\nd\te", "\u00e9", "with_bar"};
    EXPECT_EQ(description(texts),
        "(\n"
        "    Word1,\n"
        "    \"two words\",\n"
        "    \"\",\n"
        "    \"com.quorvane.Lumaroo\",\n"
        "    \"a\\\"b\\\\c\\nd\\te\",\n"
        "    \"\\U00e9\",\n"
        "    \"with_bar\"\n"
        ")");
}

TEST(Description, putsKeysAndOtherValuesInsideContainersInTheSameForm)
{
    const QDateTime date(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
    const QVariantMap map{{"a key", QByteArray("\x01")}, {"b", date}, {"c", 0.5}, {"d", QStringList{"x"}}};
    EXPECT_EQ(description(map),
        "{\n"
        "    \"a key\" = <01>;\n"
        "    b = \"2001-02-03 04:05:06 +0000\";\n"
        "    c = \"0.5\";\n"
        "    d = (\n"
        "        x\n"
        "    );\n"
        "}");
}

TEST(IntValueOfAText, isItsLeadingDigits)
{
    EXPECT_EQ(intValue(QString("12")), 12);
    EXPECT_EQ(intValue(QString("12b")), 12);
    EXPECT_EQ(intValue(QString("1.9")), 1);
    EXPECT_EQ(intValue(QString("007")), 7);
    EXPECT_EQ(intValue(QString("12 34")), 12);
}

TEST(IntValueOfAText, passesLeadingBlanksAndOneSign)
{
    EXPECT_EQ(intValue(QString(" \t\n12")), 12);
    EXPECT_EQ(intValue(QString("-12")), -12);
    EXPECT_EQ(intValue(QString(" +12")), 12);
    EXPECT_EQ(intValue(QString("--12")), 0);
    EXPECT_EQ(intValue(QString("- 12")), 0);
}

TEST(IntValueOfAText, withoutDigitsIsZero)
{
    EXPECT_EQ(intValue(QString()), 0);
    EXPECT_EQ(intValue(QString("")), 0);
    EXPECT_EQ(intValue(QString("b12")), 0);
    EXPECT_EQ(intValue(QString("-")), 0);
    EXPECT_EQ(intValue(QString("\u0661\u0662")), 0);
}

TEST(IntValueOfAText, stopsAtTheLimitsOf32Bits)
{
    EXPECT_EQ(intValue(QString("2147483647")), std::numeric_limits<int>::max());
    EXPECT_EQ(intValue(QString("2147483648")), std::numeric_limits<int>::max());
    EXPECT_EQ(intValue(QString("-2147483648")), std::numeric_limits<int>::min());
    EXPECT_EQ(intValue(QString("-2147483649")), std::numeric_limits<int>::min());
    EXPECT_EQ(intValue(QString(100000, u'9')), std::numeric_limits<int>::max());
    EXPECT_EQ(intValue(u'-' + QString(100000, u'9')), std::numeric_limits<int>::min());
}

TEST(IntValueOfAValue, isThatOfTextsNumbersAndBooleans)
{
    EXPECT_EQ(intValue(QVariant("12b")), 12);
    EXPECT_EQ(intValue(QVariant(true)), 1);
    EXPECT_EQ(intValue(QVariant(-7)), -7);
    EXPECT_EQ(intValue(QVariant(qint64(1) << 40)), std::numeric_limits<int>::max());
    EXPECT_EQ(intValue(QVariant(-(qint64(1) << 40))), std::numeric_limits<int>::min());
    EXPECT_EQ(intValue(QVariant(std::numeric_limits<quint64>::max())), std::numeric_limits<int>::max());
    EXPECT_EQ(intValue(QVariant(12.9)), 12);
    EXPECT_EQ(intValue(QVariant(-12.9F)), -12);
    EXPECT_EQ(intValue(QVariant(1e300)), std::numeric_limits<int>::max());
    EXPECT_EQ(intValue(QVariant(std::nan(""))), 0);
}

TEST(IntValueOfAValue, isZeroForAnythingElse)
{
    EXPECT_EQ(intValue(QVariant()), 0);
    EXPECT_EQ(intValue(QVariant(QByteArray("12"))), 0);
    EXPECT_EQ(intValue(QVariant(QVariantList{12})), 0);
    EXPECT_EQ(intValue(QVariant(QDateTime::currentDateTime())), 0);
}
