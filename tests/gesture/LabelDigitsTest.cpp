// The digit keys while labels show them.

#include "GestureSession.h"
#include "KTXHotKeyEntry.h"
#include "Keyboard.h"

namespace {

constexpr quint32 digitThree = 20;
constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
const QSet<int> all{1, 2, 3, 4, 5, 6, 7, 8, 9};

class LabelDigits : public GestureSession
{
public:
    bool isTaken(int key, quint16 modifiers = controlAndAlt) { return other.isHeldElsewhere(key, modifiers); }
};

} // namespace

TEST_F(LabelDigits, areTakenWithTheModifiersAndGivenBackWithTheGesture)
{
    EXPECT_FALSE(isTaken(KEY_1));
    beginHeld();
    keys.takeDigits(all);
    EXPECT_EQ(keys.takenDigits(), all);
    for (const int key : {KEY_1, KEY_5, KEY_9}) {
        EXPECT_TRUE(isTaken(key));
        EXPECT_FALSE(isTaken(key, 0));
    }
    EXPECT_FALSE(isTaken(KEY_0));
    keys.end();
    EXPECT_FALSE(isTaken(KEY_1));
    EXPECT_FALSE(isTaken(KEY_9));
    EXPECT_TRUE(keys.takenDigits().isEmpty());
    releaseModifiers();
}

TEST_F(LabelDigits, tellTheirDigitWithTheServersTime)
{
    beginHeld();
    keys.takeDigits(all);
    const quint32 before = other.serverTime();
    pressKey(KEY_3);
    const quint32 after = other.serverTime();
    ASSERT_TRUE(waitFor("digit 3"));
    EXPECT_LE(before, timeOf("digit 3"));
    EXPECT_LE(timeOf("digit 3"), after);
    EXPECT_EQ(heard(), QStringList("digit 3"));
    EXPECT_TRUE(other.grabKeyboard()) << "the press has let the keyboard go";
    other.ungrabKeyboard();
    releaseModifiers();
}

TEST_F(LabelDigits, areOnlyThoseThatAreAskedFor)
{
    beginHeld();
    keys.takeDigits({1, 2});
    keys.takeDigits({2, 3});
    EXPECT_EQ(keys.takenDigits(), (QSet<int>{2, 3}));
    EXPECT_FALSE(isTaken(KEY_1));
    EXPECT_TRUE(isTaken(KEY_2));
    EXPECT_TRUE(isTaken(KEY_3));
    releaseModifiers();
}

TEST_F(LabelDigits, thatAnActionOrAnotherProgramHasAreNone)
{
    apply({{KTXUpPref, hotKeyEntry(digitThree)}});
    ASSERT_TRUE(other.grabKey(KEY_5, controlAndAlt));
    beginHeld();
    keys.takeDigits(all);
    EXPECT_EQ(keys.takenDigits(), all - QSet<int>({3, 5}));
    pressKey(KEY_3);
    EXPECT_TRUE(waitFor("pressed moveUpHotKey"));
    EXPECT_EQ(heard(), QStringList("pressed moveUpHotKey"));
    other.ungrabKey(KEY_5, controlAndAlt);
    releaseModifiers();
}

TEST_F(LabelDigits, goByThePlaceOfTheKey)
{
    // There the digits are typed with Shift.
    setKeyboardLayout("fr");
    ASSERT_TRUE(waitUntil([this] {
        pressKey(KEY_RIGHT, {KEY_LEFTCTRL, KEY_LEFTALT});
        return heard().contains("pressed moveRightHotKey");
    }));
    beginHeld();
    keys.takeDigits(all);
    pressKey(KEY_2);
    EXPECT_TRUE(waitFor("digit 2"));
    releaseModifiers();
    setKeyboardLayout("us");
}

TEST_F(LabelDigits, workWithoutTheModifiersWhileTheKeyboardIsGrabbed)
{
    apply({{KTXUpPref, hotKeyEntry(digitThree)}});
    keys.grabKeyboard();
    keys.takeDigits(all);
    EXPECT_EQ(keys.takenDigits(), all - QSet<int>({3}));
    heard();
    pressKey(KEY_2);
    EXPECT_EQ(heard(), QStringList("digit 2"));
    pressKey(KEY_2, {KEY_LEFTCTRL, KEY_LEFTALT});
    EXPECT_EQ(heard(), QStringList("digit 2"));
    pressKey(KEY_3);
    EXPECT_EQ(heard(), QStringList("key moveUpHotKey"));
    pressKey(KEY_0);
    EXPECT_EQ(heard(), QStringList("something else"));
    keys.takeDigits({1});
    pressKey(KEY_2);
    EXPECT_EQ(heard(), QStringList("something else"));
}

TEST_F(LabelDigits, pressedBeforeTheEndAreToldNoMoreAfterIt)
{
    beginHeld();
    keys.takeDigits(all);
    QObject::connect(&keys, &GestureKeys::modifiersReleased, &keys, [this] { keys.end(); });
    pressKey(KEY_4);
    releaseModifiers();
    ASSERT_TRUE(waitFor("released"));
    EXPECT_LE(heard().count("digit 4"), 1);
    pressKey(KEY_4, {KEY_LEFTCTRL, KEY_LEFTALT});
    EXPECT_EQ(heard(), QStringList());
}
