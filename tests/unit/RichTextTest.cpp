#include "platform/appkit/richtext/NSAttributedString.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <gtest/gtest.h>

// What a credits page may hold, and how it arrives in the view that shows it.

namespace {

std::unique_ptr<QTextDocument> read(const QByteArray &body)
{
    return NSAttributedString::fromRTF("{\\rtf1\\ansi " + body + "}").document();
}

QString textOf(const QByteArray &body)
{
    return NSAttributedString::fromRTF("{\\rtf1\\ansi " + body + "}").string();
}

/// The format of the fragment that begins with `text`; an invalid one without such a fragment.
QTextCharFormat formatOf(const QTextDocument &document, const QString &text)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            if (fragment.fragment().text().startsWith(text))
                return fragment.fragment().charFormat();
        }
    }
    return QTextFormat().toCharFormat();
}

QTextBlockFormat paragraph(const QTextDocument &document, int index)
{
    return document.findBlockByNumber(index).blockFormat();
}

const QByteArray fonts =
    "{\\fonttbl\\f0\\fnil Plain;\\f1\\fswiss\\fcharset0 Swiss One;{\\f2\\fmodern{\\*\\panose 02} Typewriter;}}";
const QByteArray colors =
    "{\\colortbl;\\red255\\green128\\blue0;\\red0\\green0\\blue0;}{\\*\\expandedcolortbl;;\\cssrgb\\c0;}";

} // namespace

TEST(RichText, plainTextFollowsTheViewInFontSizeAndColor)
{
    const auto document = read("Hello");
    const QTextCharFormat format = formatOf(*document, "Hello");
    EXPECT_TRUE(format.isValid());
    EXPECT_FALSE(format.hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_FALSE(format.hasProperty(QTextFormat::FontFamilies));
    EXPECT_FALSE(format.hasProperty(QTextFormat::FontPointSize));
}

TEST(RichText, aFontIsNamedByItsNumberInTheFontTable)
{
    const auto document = read(fonts + "\\f1 one \\f2 two \\f0 zero \\f9 none");
    EXPECT_EQ(formatOf(*document, "one").fontFamilies().toStringList(), QStringList({"Swiss One", "Sans Serif"}));
    EXPECT_EQ(formatOf(*document, "two").fontFamilies().toStringList(), QStringList({"Typewriter", "Monospace"}));
    EXPECT_EQ(formatOf(*document, "zero").fontFamilies().toStringList(), QStringList("Plain"));
    EXPECT_FALSE(formatOf(*document, "none").hasProperty(QTextFormat::FontFamilies));
}

TEST(RichText, tablesAtTheHeadAreNoText)
{
    EXPECT_EQ(textOf(fonts + colors + "{\\info{\\title Title}}{\\*\\generator Some;}{\\stylesheet{\\s0 Normal;}}Text"),
        "Text");
}

TEST(RichText, sizesAreHalfPoints)
{
    const auto document = read("\\fs25 a{\\fs36 b}c\\fs0 d\\fs-4 e");
    EXPECT_EQ(formatOf(*document, "a").fontPointSize(), 12.5);
    EXPECT_EQ(formatOf(*document, "b").fontPointSize(), 18);
    EXPECT_EQ(formatOf(*document, "cde").fontPointSize(), 12.5);
}

TEST(RichText, boldItalicUnderlineAndStrikeOutEndWithTheirGroupOrWithZero)
{
    const auto document =
        read("{\\b bold}\\i italic\\i0 plain \\ul line\\ulnone  none \\ul under\\ul0 {\\strike struck} end");
    EXPECT_EQ(formatOf(*document, "bold").fontWeight(), QFont::Bold);
    EXPECT_TRUE(formatOf(*document, "italic").fontItalic());
    EXPECT_FALSE(formatOf(*document, "italic").hasProperty(QTextFormat::FontWeight));
    EXPECT_FALSE(formatOf(*document, "plain").fontItalic());
    EXPECT_TRUE(formatOf(*document, "line").fontUnderline());
    EXPECT_FALSE(formatOf(*document, " none").fontUnderline());
    EXPECT_TRUE(formatOf(*document, "under").fontUnderline());
    EXPECT_TRUE(formatOf(*document, "struck").fontStrikeOut());
    EXPECT_FALSE(formatOf(*document, " end").fontStrikeOut());
}

TEST(RichText, plainEndsEveryAttributeOfCharacters)
{
    const auto document = read(fonts + colors + "\\f1\\b\\i\\fs40\\cf1 loud\\plain quiet");
    EXPECT_EQ(formatOf(*document, "loud").fontPointSize(), 20);
    EXPECT_EQ(formatOf(*document, "quiet").propertyCount(), 0);
}

TEST(RichText, aColorIsNamedByItsNumberAndTheAutomaticOneFollowsTheView)
{
    const auto document = read(colors + "\\cf1 orange\\cf2 black\\cf0 auto\\cf1 again\\cf7 unlisted");
    EXPECT_EQ(formatOf(*document, "orange").foreground().color(), QColor(255, 128, 0));
    EXPECT_EQ(formatOf(*document, "black").foreground().color(), QColor(0, 0, 0));
    EXPECT_FALSE(formatOf(*document, "auto").hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_FALSE(formatOf(*document, "unlisted").hasProperty(QTextFormat::ForegroundBrush));
}

TEST(RichText, colorComponentsBeyondAByteAreKeptWithinIt)
{
    const auto document = read("{\\colortbl;\\red999\\green-5\\blue99999999999999;}\\cf1 x");
    EXPECT_EQ(formatOf(*document, "x").foreground().color(), QColor(255, 0, 255));
}

TEST(RichText, paragraphsEndWithParAndLinesWithLine)
{
    EXPECT_EQ(
        textOf("one\\par two\\line three\\par\\par four\\tab five\\par"), QString("one\ntwo\u2028three\n\nfour\tfive"));
}

TEST(RichText, aBackslashBeforeALineEndEndsAParagraphAndABareLineEndIsNothing)
{
    EXPECT_EQ(textOf("one\\\ntwo\\\r\nth\r\nree"), "one\ntwo\nthree");
}

TEST(RichText, alignmentHoldsUntilAnotherOrUntilPard)
{
    const auto document = read("\\qc a\\par b\\par\\qr c\\par\\qj d\\par\\ql e\\par\\qc f\\par\\pard g");
    EXPECT_EQ(paragraph(*document, 0).alignment(), Qt::AlignHCenter);
    EXPECT_EQ(paragraph(*document, 1).alignment(), Qt::AlignHCenter);
    EXPECT_EQ(paragraph(*document, 2).alignment(), Qt::AlignRight);
    EXPECT_EQ(paragraph(*document, 3).alignment(), Qt::AlignJustify);
    EXPECT_EQ(paragraph(*document, 4).alignment(), Qt::AlignLeft);
    EXPECT_FALSE(paragraph(*document, 6).hasProperty(QTextFormat::BlockAlignment));
}

TEST(RichText, spacesAroundAParagraphAreTwentiethsOfAPoint)
{
    const auto document = read("\\sb150\\sa300\\li450\\ri600\\fi-150 a\\par\\sb-9\\sa2000000000 b");
    EXPECT_EQ(paragraph(*document, 0).topMargin(), 10);
    EXPECT_EQ(paragraph(*document, 0).bottomMargin(), 20);
    EXPECT_EQ(paragraph(*document, 0).leftMargin(), 30);
    EXPECT_EQ(paragraph(*document, 0).rightMargin(), 40);
    EXPECT_EQ(paragraph(*document, 0).textIndent(), -10);
    EXPECT_EQ(paragraph(*document, 1).topMargin(), 0);
    EXPECT_EQ(paragraph(*document, 1).bottomMargin(), 2112); // 22 inches, a page
}

TEST(RichText, aLinkIsAnUnderlinedAnchorWithoutAColorOfItsOwn)
{
    const auto document =
        read("a {\\field{\\*\\fldinst{HYPERLINK \"https://lumaroo.example/a?b=c\"}}{\\fldrslt link {\\b bold}}} b");
    for (const char *part : {"link", "bold"}) {
        EXPECT_EQ(formatOf(*document, part).anchorHref(), "https://lumaroo.example/a?b=c");
        EXPECT_TRUE(formatOf(*document, part).isAnchor());
        EXPECT_TRUE(formatOf(*document, part).fontUnderline());
        EXPECT_FALSE(formatOf(*document, part).hasProperty(QTextFormat::ForegroundBrush));
    }
    EXPECT_FALSE(formatOf(*document, " b").isAnchor());
    EXPECT_EQ(document->toPlainText(), "a link bold b");
}

TEST(RichText, aLinkMayStandUnquotedAndWriteToSomebody)
{
    const auto document = read("{\\field{\\*\\fldinst HYPERLINK mailto:hello@lumaroo.example }{\\fldrslt write}}");
    EXPECT_EQ(formatOf(*document, "write").anchorHref(), "mailto:hello@lumaroo.example");
}

TEST(RichText, aLinkElsewhereThanToTheWebOrAMailboxIsMereText)
{
    for (const char *address : {"file:///etc/passwd", "javascript:alert(1)", "data:text/html,x", "relative", ""}) {
        const auto document =
            read(QByteArray("{\\field{\\*\\fldinst{HYPERLINK \"") + address + "\"}}{\\fldrslt link}}");
        EXPECT_EQ(document->toPlainText(), "link");
        EXPECT_FALSE(formatOf(*document, "link").isAnchor()) << address;
    }
}

TEST(RichText, aFieldThatIsNoLinkShowsItsResult)
{
    const auto document = read("{\\field{\\*\\fldinst PAGE}{\\fldrslt 7}}");
    EXPECT_EQ(document->toPlainText(), "7");
    EXPECT_FALSE(formatOf(*document, "7").isAnchor());
}

TEST(RichText, numberedCharactersReplaceTheirFallbacks)
{
    EXPECT_EQ(textOf("\\u8217?s \\u252\\'fcx \\uc0\\u8364 5 \\uc2\\u9731ab! {\\uc1\\u960?}\\u960\\'70\\'69."),
        QString("\u2019s \u00fcx \u20ac5 \u2603! \u03c0\u03c0."));
}

TEST(RichText, aFallbackSpreadOverTextAndBytesIsLeftOutWhole)
{
    EXPECT_EQ(textOf("\\uc3\\u960 a\\'62c!"), QString("\u03c0!"));
}

TEST(RichText, aFallbackEndsWithItsGroup)
{
    EXPECT_EQ(textOf("{\\uc5\\u960 ab}cd"), QString("\u03c0cd"));
}

TEST(RichText, negativeNumbersAndPairsMakeCharacters)
{
    EXPECT_EQ(textOf("\\u-3913?\\u55357?\\u56832?"), QString::fromUtf8("\xef\x82\xb7\xf0\x9f\x98\x80"));
}

TEST(RichText, halvesOfPairsAndMarksOfDocumentsBecomeReplacementCharacters)
{
    const QString text = textOf("a\\u55357?b\\u56832?c\\u65532?\\u64976?\\u64977?\\u8233?\\u0?\\u10?d");
    EXPECT_EQ(text, QString("a\ufffdb\ufffdc\ufffd\ufffd\ufffd\ufffd\ufffd\ufffdd"));
}

TEST(RichText, bytesAreCodePage1252)
{
    EXPECT_EQ(textOf("\\'80\\'93\\'e4\\'DF\\'94\\'81\\'c4rger \xe9"),
        QString("\u20ac\u201c\u00e4\u00df\u201d\ufffd\u00c4rger \u00e9"));
}

TEST(RichText, namedCharactersAndSymbols)
{
    EXPECT_EQ(textOf("\\{\\}\\\\\\~\\-\\_\\bullet\\endash\\emdash\\lquote\\rquote\\ldblquote\\rdblquote"),
        QString("{}\\\u00a0\u00ad\u2011\u2022\u2013\u2014\u2018\u2019\u201c\u201d"));
}

TEST(RichText, unknownWordsAreLeftOutAndUnknownDestinationsWithAllTheyHold)
{
    EXPECT_EQ(textOf("a\\unknown b\\other7 c{\\*\\secret hidden{\\b deep}\\par}d"), "abcd");
}

TEST(RichText, picturesAndBinaryDataInTheTextAreLeftOut)
{
    EXPECT_EQ(textOf(QByteArray("a{\\pict\\pngblip 89504e47}b\\bin4 }}}{c{\\pict\\bin3 {{{}d")), "abcd");
}

TEST(RichText, whatFollowsTheEndIsNotRead)
{
    EXPECT_EQ(NSAttributedString::fromRTF("{\\rtf1 text} and more {\\b x}").string(), "text");
}
