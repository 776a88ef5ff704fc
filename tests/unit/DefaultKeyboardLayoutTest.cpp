#include "KeyCodes.h"
#include "Keyboard.h"
#include "platform/foundation/keyboard/KeyboardLayout.h"

#include <gtest/gtest.h>

// Without an X server: these tests run without a display.

namespace {

UCKeyboardLayoutRef currentLayout()
{
    return TISGetInputSourceProperty(TISCopyCurrentKeyboardLayoutInputSource(), kTISPropertyUnicodeKeyLayoutData);
}

struct Translation
{
    qint32 status = 0;
    quint64 length = 77;
    quint32 deadKeyState = 0;
    std::array<char16_t, 2> units{u'?', u'?'};
};

Translation translate(VirtualKeyCode keyCode, quint32 modifiers, quint64 room)
{
    Translation result;
    result.status = UCKeyTranslate(currentLayout(), keyCode, kUCKeyActionDown, modifiers, LMGetKbdType(), 0,
        &result.deadKeyState, room, &result.length, result.units.data());
    return result;
}

} // namespace

TEST(DefaultKeyboardLayout, everyCodeAnswersAsOnAUSKeyboard)
{
    for (const KeyCodeRow &row : keyCodeRows())
        EXPECT_EQ(translatedKey(row.code), row.usCharacter) << row.code;
}

TEST(DefaultKeyboardLayout, unknownCodesGiveNothing)
{
    for (const int code : {68, 128, 255, 256, 30000, 65535})
        EXPECT_EQ(translatedKey(quint32(code)), "") << code;
}

TEST(DefaultKeyboardLayout, modifiersAreNotLookedAt)
{
    const Translation shifted = translate(0, 0xFF, 1);
    EXPECT_EQ(shifted.status, 0);
    EXPECT_EQ(shifted.length, 1u);
    EXPECT_EQ(shifted.units[0], u'a');
    EXPECT_EQ(shifted.deadKeyState, 0u);
}

TEST(DefaultKeyboardLayout, nothingIsWrittenBeyondTheRoomGiven)
{
    const Translation cut = translate(0, 0, 0);
    EXPECT_EQ(cut.status, 0);
    EXPECT_EQ(cut.length, 0u);
    EXPECT_EQ(cut.units[0], u'?');
    EXPECT_EQ(translate(0, 0, 1).units[1], u'?');
}

TEST(DefaultKeyboardLayout, aCallWithoutALayoutOrAResultIsAnError)
{
    quint32 deadKeyState = 0;
    quint64 length = 0;
    char16_t unit = 0;
    const UCKeyboardLayoutRef layout = currentLayout();
    EXPECT_EQ(UCKeyTranslate(nullptr, 0, kUCKeyActionDown, 0, 0, 0, &deadKeyState, 1, &length, &unit), -50);
    EXPECT_EQ(UCKeyTranslate(layout, 0, kUCKeyActionDown, 0, 0, 0, nullptr, 1, &length, &unit), -50);
    EXPECT_EQ(UCKeyTranslate(layout, 0, kUCKeyActionDown, 0, 0, 0, &deadKeyState, 1, nullptr, &unit), -50);
    EXPECT_EQ(UCKeyTranslate(layout, 0, kUCKeyActionDown, 0, 0, 0, &deadKeyState, 1, &length, nullptr), -50);
}

TEST(DefaultKeyboardLayout, theLayoutDataOutlivesItsSource)
{
    TISInputSourceRef source = TISCopyCurrentKeyboardLayoutInputSource();
    const UCKeyboardLayoutRef layout = TISGetInputSourceProperty(source, kTISPropertyUnicodeKeyLayoutData);
    source.reset();
    quint32 deadKeyState = 0;
    quint64 length = 0;
    char16_t unit = 0;
    EXPECT_EQ(UCKeyTranslate(layout, 6, kUCKeyActionDown, 0, 0, 0, &deadKeyState, 1, &length, &unit), 0);
    EXPECT_EQ(unit, u'z');
}

TEST(DefaultKeyboardLayout, noSourceHasNoData)
{
    EXPECT_FALSE(TISGetInputSourceProperty(nullptr, kTISPropertyUnicodeKeyLayoutData));
}

TEST(DefaultKeyboardLayout, theKeyboardHasAType)
{
    EXPECT_NE(LMGetKbdType(), 0);
    EXPECT_EQ(LMGetKbdType(), LMGetKbdType());
}
