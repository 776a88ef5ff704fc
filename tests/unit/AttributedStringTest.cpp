#include "platform/appkit/richtext/NSAttributedString.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace {

NSAttributedString attributed(const QByteArray &body)
{
    return NSAttributedString::fromRTF("{\\rtf1 " + body + "}");
}

QTextCharFormat formatAt(const QTextDocument &document, int position)
{
    QTextCursor cursor(const_cast<QTextDocument *>(&document));
    cursor.setPosition(position + 1);
    return cursor.charFormat();
}

} // namespace

TEST(AttributedString, everyOccurrenceIsReplaced)
{
    NSAttributedString text = attributed("<<c>> and <<c>>\\par <<c>>");
    text.replaceOccurrencesOfStringWithString("<<c>>", "x");
    EXPECT_EQ(text.string(), "x and x\nx");
}

TEST(AttributedString, theReplacementTakesTheAttributesOfTheFirstReplacedCharacter)
{
    NSAttributedString text = attributed("a {\\b <<co}{\\i py}>> b");
    text.replaceOccurrencesOfStringWithString("<<copy>>", "Copyright");
    const auto document = text.document();
    EXPECT_EQ(document->toPlainText(), "a Copyright b");
    EXPECT_EQ(formatAt(*document, 2).fontWeight(), QFont::Bold);
    EXPECT_EQ(formatAt(*document, 10).fontWeight(), QFont::Bold);
    EXPECT_FALSE(formatAt(*document, 10).fontItalic());
    EXPECT_FALSE(formatAt(*document, 11).hasProperty(QTextFormat::FontWeight));
}

TEST(AttributedString, anOccurrenceAtTheVeryStartKeepsItsAttributesToo)
{
    NSAttributedString text = attributed("{\\b <<c>>} plain");
    text.replaceOccurrencesOfStringWithString("<<c>>", "x");
    EXPECT_EQ(formatAt(*text.document(), 0).fontWeight(), QFont::Bold);
}

TEST(AttributedString, theParagraphKeepsItsFormat)
{
    NSAttributedString text = attributed("\\qc\\sa150 <<c>>\\par\\pard rest");
    text.replaceOccurrencesOfStringWithString("<<c>>", "x");
    EXPECT_EQ(text.document()->begin().blockFormat().alignment(), Qt::AlignHCenter);
    EXPECT_EQ(text.document()->begin().blockFormat().bottomMargin(), 10);
}

TEST(AttributedString, aReplacementThatHoldsTheTargetIsNotReplacedAgain)
{
    NSAttributedString text = attributed("aa");
    text.replaceOccurrencesOfStringWithString("a", "aa");
    EXPECT_EQ(text.string(), "aaaa");
}

TEST(AttributedString, anEmptyReplacementRemovesAndAnEmptyTargetDoesNothing)
{
    NSAttributedString text = attributed("one two");
    text.replaceOccurrencesOfStringWithString("", "x");
    EXPECT_EQ(text.string(), "one two");
    text.replaceOccurrencesOfStringWithString(" two", "");
    EXPECT_EQ(text.string(), "one");
}

TEST(AttributedString, caseCounts)
{
    NSAttributedString text = attributed("<<Copyright>>");
    text.replaceOccurrencesOfStringWithString("<<copyright>>", "x");
    EXPECT_EQ(text.string(), "<<Copyright>>");
}

TEST(AttributedString, aCopyStaysAsItWasWhenTheOtherIsChanged)
{
    NSAttributedString text = attributed("one");
    const NSAttributedString copy = text;
    text.replaceOccurrencesOfStringWithString("one", "two");
    EXPECT_EQ(copy.string(), "one");
    EXPECT_EQ(text.string(), "two");
}

TEST(AttributedString, aDocumentHandedOutBelongsToItsReceiver)
{
    const NSAttributedString text = attributed("one");
    QTextCursor(text.document().get()).insertText("changed ");
    const auto document = text.document();
    QTextCursor(document.get()).insertText("changed ");
    EXPECT_EQ(text.string(), "one");
    EXPECT_EQ(text.document()->toPlainText(), "one");
}

TEST(AttributedString, aNewOneIsEmptyAndTakesReplacements)
{
    NSAttributedString text;
    text.replaceOccurrencesOfStringWithString("a", "b");
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(text.string(), "");
    EXPECT_TRUE(text.document()->isEmpty());
}
