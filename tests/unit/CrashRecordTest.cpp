// The newest record of a crash log, whatever its characters.

#include "crashreporter/CrashRecord.h"

#include <gtest/gtest.h>

namespace {

const QByteArray separator = "\n\n**********\n\n";

QByteArray utf16(const QString &text, bool bigEndian)
{
    QByteArray bytes;
    for (const QChar character : u'\ufeff' + text) {
        const char high = char(character.unicode() >> 8);
        const char low = char(character.unicode() & 0xff);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

} // namespace

TEST(CrashRecord, isTheLastPiece)
{
    EXPECT_EQ(lastCrashRecord("one" + separator + "two" + separator + "three"), "three");
}

TEST(CrashRecord, isTheWholeLogWithoutASeparator)
{
    EXPECT_EQ(lastCrashRecord("one\n\n*********\n\ntwo"), "one\n\n*********\n\ntwo");
    EXPECT_EQ(lastCrashRecord(""), "");
}

TEST(CrashRecord, isEmptyAfterASeparatorAtTheEnd)
{
    EXPECT_EQ(lastCrashRecord("one" + separator), "");
    EXPECT_EQ(lastCrashRecord(separator), "");
}

TEST(CrashRecord, beginsBehindTheFirstOfTwoSeparatorsThatOverlap)
{
    EXPECT_EQ(lastCrashRecord("one\n\n**********\n\n**********\n\ntwo"), "**********\n\ntwo");
}

TEST(CrashRecord, isReadAsUTF8)
{
    EXPECT_EQ(lastCrashRecord("\xc3\xa4" + separator + "\xe2\x82\xac\xf0\x9f\x98\x80"), u"\u20ac\U0001f600");
}

TEST(CrashRecord, isReadAsLatin1WhereSomethingOfTheLogIsNoUTF8)
{
    EXPECT_EQ(lastCrashRecord("\xe4" + separator + "\xc3\xa4"), u"\u00c3\u00a4");
    EXPECT_EQ(lastCrashRecord("one" + separator + "gr\xfc\xdf"), u"gr\u00fc\u00df");
}

TEST(CrashRecord, keepsBytesOfZero)
{
    EXPECT_EQ(lastCrashRecord("one" + separator + QByteArray("a\0b\0", 4)), QString::fromUtf16(u"a\0b\0", 4));
    EXPECT_EQ(lastCrashRecord("\xff" + separator + QByteArray("a\0b", 3)), QString::fromUtf16(u"a\0b", 3));
    EXPECT_EQ(lastCrashRecord(QByteArray("\0", 1) + separator + "two"), "two");
}

TEST(CrashRecord, hasNoByteOrderMark)
{
    EXPECT_EQ(lastCrashRecord("\xef\xbb\xbf\xc3\xa4"), u"\u00e4");
    EXPECT_EQ(lastCrashRecord("\xef\xbb\xbf"
                              "one"
                  + separator + "two"),
        "two");
}

TEST(CrashRecord, keepsWhatOnlyLooksLikeAByteOrderMark)
{
    EXPECT_EQ(lastCrashRecord("one" + separator
                  + "\xef\xbb\xbf"
                    "two"),
        u"\ufefftwo");
    EXPECT_EQ(lastCrashRecord("\xef\xbb\xbf\xff"), u"\u00ef\u00bb\u00bf\u00ff");
}

TEST(CrashRecord, isReadInTheFormThatTheByteOrderMarkTells)
{
    const QString log = QStringLiteral("one\n\n**********\n\ntw\u00f6\u20ac");
    EXPECT_EQ(lastCrashRecord(utf16(log, true)), u"tw\u00f6\u20ac");
    EXPECT_EQ(lastCrashRecord(utf16(log, false)), u"tw\u00f6\u20ac");
    EXPECT_EQ(lastCrashRecord(QByteArray("\xff\xfe\0\0a\0\0\0", 8)), "a");
}

TEST(CrashRecord, isFoundInALogOf200Mebibytes)
{
    const QByteArray record = QByteArray(1024 * 1024 - separator.size(), 'x') + separator;
    EXPECT_EQ(lastCrashRecord(record.repeated(200) + "last"), "last");
    EXPECT_EQ(lastCrashRecord("\xff" + record.repeated(200) + "last"), "last");
}

TEST(CrashRecord, ofALogsEndBeginsWithAWholeCharacter)
{
    const QByteArray text = "\xf0\x9f\x98\x80 and \xc3\xa4";
    for (qsizetype missing = 1; missing <= 4; ++missing)
        EXPECT_EQ(fromWholeCharacter(text.sliced(missing)), " and \xc3\xa4");
    EXPECT_EQ(fromWholeCharacter(text), text);
    EXPECT_EQ(fromWholeCharacter(""), "");
    EXPECT_EQ(fromWholeCharacter("\xa4\xa4\xa4\xa4"), "\xa4") << "no character is longer";
}

TEST(CrashRecord, isShortenedWithALineThatSaysSo)
{
    EXPECT_EQ(shortenedCrashRecord("12345", 5), "12345");
    EXPECT_EQ(shortenedCrashRecord("12345678", 5), "12345\n*** 3 more characters are left out ***");
    EXPECT_EQ(
        shortenedCrashRecord(QStringLiteral("1234\U0001F600"), 5), "1234\n*** 2 more characters are left out ***");
}
