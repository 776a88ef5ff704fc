// Which key is which action's while the keyboard is the agent's.

#include "agent/keys/ActionKeyTable.h"
#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"
#include "KTXModifiers.h"
#include "KTXSettings.h"

#include <gtest/gtest.h>

namespace {

constexpr quint32 Up = 126, Escape = 53, Q = 12, digitOne = 18, digitFive = 23, digitNine = 25, keypadEnter = 76,
                  otherEnter = 52;

class ActionKeys : public testing::Test
{
public:
    void follow(QVariantMap changes)
    {
        QVariantMap settings;
        for (const KTXSetting &setting : KTXSettings())
            settings.insert(setting.key, setting.defaultValue);
        settings.insert(changes);
        table.follow(settings);
    }
    QString action(quint32 keyCode, quint32 held = 0) const { return table.actionOf({keyCode, false, 0, held, 0}); }

    ActionKeyTable table;
};

} // namespace

TEST_F(ActionKeys, goBySixteenOfTheSettings)
{
    QStringList settings;
    for (const KTXSetting &setting : KTXSettings()) {
        if (isSettingOfKeys(setting.key))
            settings += setting.key;
        EXPECT_TRUE(setting.type != KTXSettingType::HotKey || isSettingOfKeys(setting.key))
            << setting.key.toStdString();
    }
    EXPECT_EQ(settings.size(), 11 + 5);
    for (const QString &other :
        {KTXModifierMask, KTXActivateDoubleClick, KTXAutoRepeat, KTXInitialDelay, KTXRepeatRate})
        EXPECT_TRUE(settings.contains(other)) << other.toStdString();
}

TEST_F(ActionKeys, areTheElevenByDefault)
{
    follow({});
    for (const KTXActionKey &one : KTXActionKeys()) {
        EXPECT_EQ(action(one.defaultKeyCode.number(), DEFAULT_MODIFIER_MASK), one.preferenceName);
        EXPECT_EQ(table.keyOf(one.preferenceName), one.defaultKeyCode);
    }
    EXPECT_EQ(action(Q), QString());
    EXPECT_EQ(table.actionOf({std::nullopt, false, 0, 0, 0}), QString());
    EXPECT_EQ(table.keyOf("noAction"), std::nullopt);
}

TEST_F(ActionKeys, countWithTheModifiersAPartOfThemOrNoneButWithNoOther)
{
    follow({});
    for (const quint32 held : {0U, KTXControlModifier, KTXOptionModifier, DEFAULT_MODIFIER_MASK})
        EXPECT_EQ(action(Up, held), KTXUpPref) << held;
    for (const quint32 held : {KTXShiftModifier, KTXCommandModifier, DEFAULT_MODIFIER_MASK | KTXShiftModifier})
        EXPECT_EQ(action(Up, held), QString()) << held;
}

TEST_F(ActionKeys, areThoseThatAreStored)
{
    follow({{KTXUpPref, hotKeyEntry(Q)}});
    EXPECT_EQ(action(Q), KTXUpPref);
    EXPECT_EQ(action(Up), QString());
    // The keypad's Enter is stored in two ways.
    follow({{KTXUpPref, hotKeyEntry(otherEnter)}});
    EXPECT_EQ(action(keypadEnter), KTXUpPref);
}

TEST_F(ActionKeys, ofTwoActionsWithOneKeyIsTheFirstOnes)
{
    follow({{KTXPreviewPref, hotKeyEntry(Up)}});
    EXPECT_EQ(action(Up), KTXUpPref);
}

TEST_F(ActionKeys, plainEscapeAlwaysCancels)
{
    follow({{KTXCancelPref, hotKeyEntry(Q)}, {KTXPreviewPref, hotKeyEntry(Escape)}});
    EXPECT_EQ(action(Escape), KTXCancelPref);
    EXPECT_EQ(action(Q), KTXCancelPref);
    EXPECT_EQ(action(Escape, DEFAULT_MODIFIER_MASK), KTXPreviewPref);
}

TEST_F(ActionKeys, digitsGoByThePlaceOfTheirKeyUnlessThatIsAnActions)
{
    follow({{KTXUpPref, hotKeyEntry(digitFive)}});
    EXPECT_EQ(table.digitOf({digitOne, false, 0, 0, 0}), 1);
    EXPECT_EQ(table.digitOf({digitNine, false, 0, DEFAULT_MODIFIER_MASK, 0}), 9);
    EXPECT_EQ(table.digitOf({digitOne, false, 0, KTXShiftModifier, 0}), std::nullopt);
    EXPECT_EQ(table.digitOf({digitFive, false, 0, 0, 0}), std::nullopt);
    EXPECT_EQ(table.digitOf({Q, false, 0, 0, 0}), std::nullopt);
    for (int digit = 1; digit <= 9; ++digit) {
        EXPECT_EQ(virtualKey(ActionKeyTable::keyOfDigit(digit))->character, u'0' + digit);
        EXPECT_EQ(table.isActionsKey(ActionKeyTable::keyOfDigit(digit)), digit == 5);
    }
}

TEST_F(ActionKeys, fiveOfThemMove)
{
    for (const QString &action : {KTXUpPref, KTXRightPref, KTXDownPref, KTXLeftPref, KTXUnderPref})
        EXPECT_TRUE(isMovementAction(action));
    for (const QString &action : {KTXScreenshotPref, KTXCancelPref, KTXSnapPref, QString()})
        EXPECT_FALSE(isMovementAction(action));
}
