#include "KeyCodeTranslator.h"

#include <gtest/gtest.h>

namespace {

QString nameOf(VirtualKeyCode keyCode, quint64 modifierFlags = 0)
{
    return KeyCodeTranslator::stringForKeyCodeWithModifierFlags(keyCode, modifierFlags);
}

QString nameOfUnit(char16_t unit)
{
    return KeyCodeTranslator::nameOfTranslation(QString(QChar(unit)));
}

struct Row
{
    int character;
    const char *name;
    int glyph;
};

// Typed once more: the order counts, and so does every pairing.
const std::vector<Row> expectedRows{
    {0xF700, "↑", 0x2191},
    {0xF701, "↓", 0x2193},
    {0xF702, "←", 0x2190},
    {0xF703, "→", 0x2192},
    {0xF729, "Home", 0},
    {0xF72B, "End", 0},
    {0xF72C, "Page Up", 0},
    {0xF72D, "Page Down", 0},
    {0x001E, "↑", 0x2191},
    {0x001F, "↓", 0x2193},
    {0x001C, "←", 0x2190},
    {0x001D, "→", 0x2192},
    {0x0001, "Home", 0},
    {0x0004, "End", 0},
    {0x000B, "Page Up", 0},
    {0x000C, "Page Down", 0},
    {0x0003, "Return", 0},
    {0x0009, "Tab", 0},
    {0x0019, "Backtab", 0},
    {0x000D, "Enter", 0},
    {0x0008, "Backspace", 0},
    {0x007F, "Delete", 0},
    {0x001B, "Escape", 0},
    {0x0020, "Space", 0},
};

} // namespace

TEST(KeyName, theTableHasItsTwentyFourRowsInOrder)
{
    ASSERT_EQ(keyNameTable.size(), expectedRows.size());
    for (std::size_t index = 0; index < expectedRows.size(); ++index) {
        EXPECT_EQ(keyNameTable[index].character, expectedRows[index].character) << index;
        EXPECT_EQ(QString::fromUtf16(keyNameTable[index].name), QString(expectedRows[index].name)) << index;
        EXPECT_EQ(keyNameTable[index].glyph, quint32(expectedRows[index].glyph)) << index;
    }
}

TEST(KeyName, everyNamedCharacterShowsItsGlyphOrItsName)
{
    for (const Row &row : expectedRows)
        EXPECT_EQ(nameOfUnit(char16_t(row.character)), row.name) << row.character;
}

TEST(KeyName, functionAndControlCharactersNameTheSameKeys)
{
    EXPECT_EQ(nameOfUnit(0xF700), "↑");
    EXPECT_EQ(nameOfUnit(0x001E), "↑");
    EXPECT_EQ(nameOfUnit(0xF729), "Home");
    EXPECT_EQ(nameOfUnit(0x0001), "Home");
}

TEST(KeyName, anyOtherCharacterIsShownInUpperCase)
{
    EXPECT_EQ(nameOfUnit(u'a'), "A");
    EXPECT_EQ(nameOfUnit(u'ä'), "Ä");
    EXPECT_EQ(nameOfUnit(u'ф'), "Ф");
    EXPECT_EQ(nameOfUnit(u'ß'), "SS");
    EXPECT_EQ(nameOfUnit(u'/'), "/");
}

TEST(KeyName, aKeyThatGivesNothingIsNamedByNothing)
{
    EXPECT_EQ(KeyCodeTranslator::nameOfTranslation({}), "");
}

TEST(KeyName, arrowsAreShownAsArrows)
{
    EXPECT_EQ(nameOf(126), "↑");
    EXPECT_EQ(nameOf(125), "↓");
    EXPECT_EQ(nameOf(123), "←");
    EXPECT_EQ(nameOf(124), "→");
}

TEST(KeyName, theSpecialKeysHaveNames)
{
    EXPECT_EQ(nameOf(49), "Space");
    EXPECT_EQ(nameOf(53), "Escape");
    EXPECT_EQ(nameOf(48), "Tab");
    EXPECT_EQ(nameOf(51), "Backspace");
    EXPECT_EQ(nameOf(117), "Delete");
    EXPECT_EQ(nameOf(115), "Home");
    EXPECT_EQ(nameOf(119), "End");
    EXPECT_EQ(nameOf(116), "Page Up");
    EXPECT_EQ(nameOf(121), "Page Down");
    EXPECT_EQ(nameOf(71), "Escape");
}

TEST(KeyName, theMainReturnKeyIsEnterAndTheKeypadsEnterIsReturn)
{
    EXPECT_EQ(nameOf(36), "Enter");
    EXPECT_EQ(nameOf(76), "Return");
    EXPECT_EQ(nameOf(52), "Return");
}

TEST(KeyName, aLetterIsUpperCaseWhateverModifiersArePassed)
{
    for (const quint64 flags : {quint64(0), quint64(0x20000), quint64(0x1E0000), quint64(0x1B00), ~quint64(0)})
        EXPECT_EQ(nameOf(0, flags), "A") << flags;
}

TEST(KeyName, modifierKeysAndUnknownCodesAreNamedByNothing)
{
    for (const int code : {54, 55, 56, 57, 58, 59, 60, 61, 62, 63, 68, 90, 128, 65535})
        EXPECT_EQ(nameOf(quint16(code)), "") << code;
}
