#include "KTXModifiers.h"
#include "KeyCodeTranslator.h"

#include <gtest/gtest.h>

TEST(ModifierGlyphs, standInTheOrderShiftControlOptionCommand)
{
    EXPECT_EQ(modifierGlyphs(0x1B00), "⇧⌃⌥⌘");
    EXPECT_EQ(modifierGlyphs(0x1800), "⌃⌥");
    EXPECT_EQ(modifierGlyphs(0), "");
}

TEST(ModifierGlyphs, eachModifierHasOne)
{
    EXPECT_EQ(modifierGlyphs(KTXShiftModifier), "⇧");
    EXPECT_EQ(modifierGlyphs(KTXControlModifier), "⌃");
    EXPECT_EQ(modifierGlyphs(KTXOptionModifier), "⌥");
    EXPECT_EQ(modifierGlyphs(KTXCommandModifier), "⌘");
}

TEST(ModifierGlyphs, otherBitsHaveNone)
{
    EXPECT_EQ(modifierGlyphs(~quint32(KTXAllModifiers)), "");
    EXPECT_EQ(modifierGlyphs(0xFFFFFFFF), "⇧⌃⌥⌘");
}

TEST(EventFlags, areThoseOfTheSameModifiers)
{
    EXPECT_EQ(hKeyModsToCGEventParams(0x200), 0x20000u);
    EXPECT_EQ(hKeyModsToCGEventParams(0x1000), 0x40000u);
    EXPECT_EQ(hKeyModsToCGEventParams(0x800), 0x80000u);
    EXPECT_EQ(hKeyModsToCGEventParams(0x100), 0x100000u);
    EXPECT_EQ(hKeyModsToCGEventParams(0x1B00), 0x1E0000u);
    EXPECT_EQ(hKeyModsToCGEventParams(0), 0u);
}

TEST(EventFlags, ofOtherBitsAreNone)
{
    EXPECT_EQ(hKeyModsToCGEventParams(~quint32(KTXAllModifiers)), 0u);
    EXPECT_EQ(hKeyModsToCGEventParams(0xFFFFFFFF), 0x1E0000u);
}

TEST(Bits, areWrittenMostSignificantFirst)
{
    EXPECT_EQ(binaryString(5), QString(29, '0') + "101");
    EXPECT_EQ(binaryString(0), QString(32, '0'));
    EXPECT_EQ(binaryString(0xFFFFFFFF), QString(32, '1'));
    EXPECT_EQ(binaryString(0x80000000), "1" + QString(31, '0'));
}

TEST(Bits, arePrintedWithoutALineEnd)
{
    testing::internal::CaptureStdout();
    printBits(0x80000005);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "1" + std::string(28, '0') + "101");
}

TEST(Bits, ofABooleanAreAWord)
{
    EXPECT_EQ(BOOLString(true), "Yes");
    EXPECT_EQ(BOOLString(false), "No");
}
