#include "CapturedLog.h"
#include "platform/appkit/richtext/NSAttributedString.h"

#include <QFile>
#include <QTextDocument>
#include <gtest/gtest.h>

// Rich text comes from a file that may be anything: it never brings the reader down, and what could be read is shown.

namespace {

const QByteArray everything =
    "{\\rtf1\\ansi\\uc1{\\fonttbl\\f0\\fswiss Sans;}{\\colortbl;\\red1\\green2\\blue3;}\\pard\\qc\\f0\\fs24\\cf1 "
    "One {\\b two}\\par{{\\NeXTGraphic image.png \\width640 \\height640}\\'ac}\\u8217?\\'e4\\~\\bin2 ab"
    "{\\field{\\*\\fldinst{HYPERLINK \"https://lumaroo.example/\"}}{\\fldrslt link}}\\par}";

QByteArray credits()
{
    QFile file(qEnvironmentVariable("LUMAROO_SOURCE") + "/resources/pane/Credits.rtfd/TXT.rtf");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void expectEveryPrefixIsReadAsFarAsItGoes(const QByteArray &whole)
{
    const QString text = NSAttributedString::fromRTF(whole).string();
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const QString begun = NSAttributedString::fromRTF(whole.first(size)).string();
        EXPECT_LE(begun.size(), text.size() + 2) << size;
    }
    EXPECT_EQ(NSAttributedString::fromRTF(whole.chopped(1)).string(), text);
}

void expectNoDamagedByteBringsTheReaderDown(const QByteArray &whole)
{
    for (qsizetype index = 0; index < whole.size(); ++index) {
        for (const char byte : {'\0', '{', '}', '\\', '\xff', '9', '*'}) {
            QByteArray damaged = whole;
            damaged[index] = byte;
            const NSAttributedString text = NSAttributedString::fromRTF(damaged, "/nowhere");
            EXPECT_LE(text.string().size(), whole.size());
        }
    }
}

} // namespace

TEST(RichTextDamage, textWithoutTheHeaderIsEmpty)
{
    for (const char *data : {"", "{", "{\\rt", "plain text", "\\rtf1 x", "{\\b bold}", "<html>"}) {
        const NSAttributedString text = NSAttributedString::fromRTF(data);
        EXPECT_TRUE(text.isEmpty()) << data;
        EXPECT_EQ(text.string(), "");
    }
}

TEST(RichTextDamage, unclosedGroupsGiveWhatWasRead)
{
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 one {\\b two {\\i three").string(), "one two three");
}

TEST(RichTextDamage, aGroupClosedTooOftenEndsTheText)
{
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 one}} two").string(), "one");
}

TEST(RichTextDamage, anUnfinishedControlAtTheEndIsNothing)
{
    for (const char *tail : {"\\", "\\'", "\\'4", "\\u", "\\b", "\\*", "\\bin", "\\bin99", "{", "{\\*"})
        EXPECT_EQ(NSAttributedString::fromRTF(QByteArray("{\\rtf1 text") + tail).string(), "text") << tail;
}

TEST(RichTextDamage, bytesThatAreNotHexadecimalAreNoBytes)
{
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 a\\'zzb\\'4yc}").string(), "azzbyc");
}

TEST(RichTextDamage, textInTheCreditsCutAtEveryByteIsReadAsFarAsItGoes)
{
    expectEveryPrefixIsReadAsFarAsItGoes(credits());
    expectEveryPrefixIsReadAsFarAsItGoes(everything);
}

TEST(RichTextDamage, aWrongByteAnywhereDoesNoHarm)
{
    expectNoDamagedByteBringsTheReaderDown(everything);
}

TEST(RichTextDamage, whatIsNestedDeeperThanSixtyFourGroupsIsLeftOut)
{
    const auto nested = [](int depth) {
        return "{\\rtf1 " + QByteArray(depth - 1, '{') + "deep" + QByteArray(depth - 1, '}') + " shallow}";
    };
    EXPECT_EQ(NSAttributedString::fromRTF(nested(64)).string(), "deep shallow");
    EXPECT_EQ(NSAttributedString::fromRTF(nested(65)).string(), " shallow");
    EXPECT_EQ(NSAttributedString::fromRTF(nested(500000)).string(), " shallow");
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 a" + QByteArray(1000000, '{')).string(), "a");
}

TEST(RichTextDamage, hugeNumbersAreKeptWithinBounds)
{
    for (const char *word : {"fs", "f", "cf", "li", "fi", "sb", "u", "uc", "bin", "b", "red", "unknown"}) {
        for (const char *number :
            {"99999999999999999999999", "-99999999999999999999999", "2147483648", "-2147483648"}) {
            const QByteArray data = QByteArray("{\\rtf1 a\\") + word + number + " b}";
            EXPECT_TRUE(NSAttributedString::fromRTF(data).string().startsWith("a")) << data.constData();
        }
    }
}

TEST(RichTextDamage, anEndlessWordOrNumberIsOneWord)
{
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 a\\" + QByteArray(500000, 'x') + " b}").string(), "ab");
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 a\\b" + QByteArray(500000, '1') + " b}").string(), "ab");
}

TEST(RichTextDamage, tablesInTheMidstOfTheWholeTextDoNotSwallowIt)
{
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 a\\fonttbl b\\colortbl c\\fldinst d\\pict e}").string(), "abcde");
}

TEST(RichTextDamage, aTextOfMoreThanAMebibyteIsRefusedInOneLine)
{
    CapturedLog log;
    const QByteArray head = "{\\rtf1 ";
    const QByteArray largest = head + QByteArray(1024 * 1024 - head.size(), 'x');
    EXPECT_EQ(NSAttributedString::fromRTF(largest).string().size(), 1024 * 1024 - head.size());
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_TRUE(NSAttributedString::fromRTF(largest + "x").isEmpty());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(RichTextDamage, aMebibyteOfParagraphsOrOfChangesOfFormatIsReadInOneGo)
{
    const auto filled = [](const QByteArray &piece) {
        return "{\\rtf1{\\colortbl;\\red1;}" + piece.repeated(1024 * 1024 / piece.size() - 40) + "}";
    };
    for (const char *piece : {"\\par", "\\b1 x\\b0 y", "\\qc x\\par\\pard", "\\u1?"})
        EXPECT_FALSE(NSAttributedString::fromRTF(filled(piece)).string().isEmpty()) << piece;
}
