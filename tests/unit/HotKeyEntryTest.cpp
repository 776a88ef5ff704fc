// A hot key as it is stored.

#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <gtest/gtest.h>

TEST(AHotKeysEntry, isADictionaryWithTheKeyCodeInDigits)
{
    EXPECT_TRUE(isEqualPropertyList(hotKeyEntry(126), QVariantMap{{"keycode", "126"}}));
    EXPECT_TRUE(isEqualPropertyList(hotKeyEntry(0), QVariantMap{{"keycode", "0"}}));
    EXPECT_TRUE(isEqualPropertyList(hotKeyEntry(65535), QVariantMap{{"keycode", "65535"}}));
}

TEST(AHotKeysEntry, isReadBackAsItWasWritten)
{
    for (const int keyCode : {0, 1, 126, 65535})
        EXPECT_EQ(keyCodeOf(hotKeyEntry(quint16(keyCode))), keyCode);
}

TEST(AHotKeysEntry, givesTheLeadingNumberOfWhateverStandsThere)
{
    EXPECT_EQ(keyCodeOf(QVariantMap{{KTXKeycode, "12b"}, {KTXUnichar, "q"}}), 12);
    EXPECT_EQ(keyCodeOf(QVariantMap{{KTXKeycode, qlonglong(13)}}), 13);
    EXPECT_EQ(keyCodeOf(QVariantMap{{KTXKeycode, "none"}}), 0);
    EXPECT_EQ(keyCodeOf(QVariantMap{{KTXKeycode, QVariantList()}}), 0);
    EXPECT_EQ(keyCodeOf(QVariantMap{{KTXKeycode, "65662"}}), 65662);
}

TEST(AHotKeysEntry, isNoneWithoutADictionaryThatHasAKeyCode)
{
    for (const QVariant &none : {QVariant(), QVariant("126"), QVariant(qlonglong(126)), QVariant(QVariantList{"126"}),
             QVariant(QVariantMap()), QVariant(QVariantMap{{KTXUnichar, "q"}})})
        EXPECT_EQ(keyCodeOf(none), std::nullopt);
}
