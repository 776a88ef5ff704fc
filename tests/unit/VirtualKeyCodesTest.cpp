#include "platform/foundation/keyboard/VirtualKeyCodes.h"
#include "KeyCodes.h"

#include <gtest/gtest.h>

TEST(VirtualKeyCodes, theTableHoldsWhatTheDataHolds)
{
    ASSERT_EQ(virtualKeys().size(), std::size_t(keyCodeRows().size()));
    for (const KeyCodeRow &row : keyCodeRows()) {
        const VirtualKey *key = virtualKey(row.code);
        ASSERT_TRUE(key) << row.code;
        EXPECT_EQ(key->code, row.code);
        EXPECT_EQ(key->evdev, row.evdev) << row.code;
        EXPECT_EQ(key->xkbName, row.xkbName) << row.code;
        EXPECT_EQ(key->character, row.usCharacter.isEmpty() ? 0 : row.usCharacter.at(0).unicode()) << row.code;
        EXPECT_EQ(key->recordable, row.recordable) << row.code;
    }
}

TEST(VirtualKeyCodes, theTableIsAscending)
{
    for (std::size_t index = 1; index < virtualKeys().size(); ++index)
        EXPECT_LT(virtualKeys()[index - 1].code, virtualKeys()[index].code);
}

TEST(VirtualKeyCodes, aCodeThatNobodyKnowsHasNoRow)
{
    EXPECT_FALSE(virtualKey(68));
    EXPECT_FALSE(virtualKey(128));
    EXPECT_FALSE(virtualKey(65535));
}

TEST(VirtualKeyCodes, everyKeyLeadsBackToItsCode)
{
    for (const KeyCodeRow &row : keyCodeRows()) {
        if (row.evdev != 0 && row.recordable) {
            EXPECT_EQ(virtualKeyCodeForEvdev(quint32(row.evdev)), row.code);
        }
        for (const int alias : row.aliases)
            EXPECT_EQ(virtualKeyCodeForEvdev(quint32(alias)), row.code) << alias;
    }
}

TEST(VirtualKeyCodes, theKeypadsEnterIsNeverTheOldCode)
{
    EXPECT_EQ(virtualKeyCodeForEvdev(96), 76);
}

TEST(VirtualKeyCodes, keysOfThePCStandForThoseItLacks)
{
    EXPECT_EQ(virtualKeyCodeForEvdev(99), 105); // Print Screen
    EXPECT_EQ(virtualKeyCodeForEvdev(70), 107); // Scroll Lock
    EXPECT_EQ(virtualKeyCodeForEvdev(119), 113); // Pause
    EXPECT_EQ(virtualKeyCodeForEvdev(138), 114); // Help
    EXPECT_EQ(virtualKeyCodeForEvdev(110), 114); // Insert
}

TEST(VirtualKeyCodes, aKeyThatNobodyKnowsHasNoCode)
{
    EXPECT_EQ(virtualKeyCodeForEvdev(0), std::nullopt);
    EXPECT_EQ(virtualKeyCodeForEvdev(240), std::nullopt);
    EXPECT_EQ(virtualKeyCodeForEvdev(65536 + 30), std::nullopt);
}
