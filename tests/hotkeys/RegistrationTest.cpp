// What registering and giving up a hot key answers.

#include "AllocatedMemory.h"
#include "HotKeySession.h"
#include "KeyCodes.h"
#include "KeyPress.h"
#include "Wait.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <linux/input-event-codes.h>
#include <unistd.h>

namespace {

constexpr quint32 A = 0, S = 1, Unknown = 200;
constexpr quint32 f13 = 105, OtherEnter = 52, Enter = 76;
constexpr quint16 control = XCB_MOD_MASK_CONTROL, numLock = XCB_MOD_MASK_2;

class Registration : public HotKeySession
{
};

} // namespace

TEST_F(Registration, ofAFreeCombinationSucceedsAndHoldsIt)
{
    EXPECT_EQ(add(A, controlKey), noErr);
    EXPECT_FALSE(other.grabKey(KEY_A, control));
}

TEST_F(Registration, holdsTheCombinationWithEveryLockKey)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    for (const int locks : {int(XCB_MOD_MASK_LOCK), int(numLock), XCB_MOD_MASK_LOCK | numLock})
        EXPECT_FALSE(other.grabKey(KEY_A, quint16(control | locks))) << locks;
    EXPECT_TRUE(other.grabKey(KEY_A, control | XCB_MOD_MASK_SHIFT));
}

TEST_F(Registration, ofTheSameCombinationAgainIsRefusedWithEitherOption)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    EXPECT_EQ(add(A, controlKey, 2, kEventHotKeyNoOptions), eventHotKeyExistsErr);
    EXPECT_EQ(add(A, controlKey, 2, kEventHotKeyExclusive), eventHotKeyExistsErr);
    EXPECT_EQ(eventHotKeyExistsErr, -9878);
    EXPECT_EQ(add(A, controlKey | shiftKey, 2), noErr);
    EXPECT_EQ(add(S, controlKey, 3), noErr);
}

TEST_F(Registration, ofAnotherProgramsCombinationIsRefusedWithEitherOption)
{
    ASSERT_TRUE(other.grabKey(KEY_A, control));
    EXPECT_EQ(add(A, controlKey, 1, kEventHotKeyNoOptions), eventHotKeyExistsErr);
    EXPECT_EQ(add(A, controlKey, 1, kEventHotKeyExclusive), eventHotKeyExistsErr);
    other.ungrabKey(KEY_A, control);
    EXPECT_EQ(add(A, controlKey), noErr);
}

TEST_F(Registration, thatIsRefusedWithOneLockKeyLeavesNothingHeld)
{
    ASSERT_TRUE(other.grabKey(KEY_A, control | numLock));
    EXPECT_EQ(add(A, controlKey), eventHotKeyExistsErr);
    EXPECT_TRUE(other.grabKey(KEY_A, control));
    EXPECT_TRUE(other.grabKey(KEY_A, control | XCB_MOD_MASK_LOCK));
}

TEST_F(Registration, ofAnyModifiersOfTheKeyHeldElsewhereIsRefused)
{
    ASSERT_TRUE(other.grabKey(KEY_A, XCB_MOD_MASK_ANY));
    EXPECT_EQ(add(A, controlKey), eventHotKeyExistsErr);
}

TEST_F(Registration, isRefusedForWhatAWindowManagerHolds)
{
    const QTemporaryDir folder;
    const QString ready = folder.filePath("ready");
    QProcess manager;
    // It says when it holds its keys: trying them out meanwhile could take one away from it.
    manager.start("openbox", {"--config-file", "/etc/xdg/openbox/rc.xml", "--startup", "mkdir " + ready});
    ASSERT_TRUE(waitUntil([&] { return QFileInfo::exists(ready); }));
    const std::pair<quint32, int> arrows[]{{123, KEY_LEFT}, {124, KEY_RIGHT}, {125, KEY_DOWN}, {126, KEY_UP}};
    for (const auto &[arrow, evdev] : arrows) {
        ASSERT_TRUE(other.isHeldElsewhere(evdev, control | XCB_MOD_MASK_1)) << arrow;
        EXPECT_EQ(add(arrow, controlKey | optionKey), eventHotKeyExistsErr) << arrow;
        EXPECT_EQ(add(arrow, controlKey | optionKey | cmdKey), noErr) << arrow;
    }
    manager.terminate();
    EXPECT_TRUE(manager.waitForFinished());
}

TEST_F(Registration, withoutModifiersIsOnlyARefusalOfTheCaller)
{
    EXPECT_EQ(add(f13, 0), noErr);
}

TEST_F(Registration, ofWhatNoKeyBearsIsAParameterError)
{
    for (const KeyCodeRow &row : keyCodeRows()) {
        if (row.evdev == 0 && row.code != OtherEnter) {
            EXPECT_EQ(add(row.code, controlKey), paramErr) << row.code;
        }
    }
    EXPECT_EQ(add(200, controlKey), paramErr);
    EXPECT_EQ(add(0x10000, controlKey), paramErr);
    EXPECT_EQ(add(quint32(-1), controlKey), paramErr);
}

TEST_F(Registration, ofOtherModifiersOrOptionsIsAParameterError)
{
    EXPECT_EQ(add(A, 0x400), paramErr);
    EXPECT_EQ(add(A, controlKey | 0x10000), paramErr);
    EXPECT_EQ(add(A, controlKey, 1, 2), paramErr);
}

TEST_F(Registration, withoutTargetOrPlaceIsAParameterError)
{
    EventHotKeyRef reference = nullptr;
    EXPECT_EQ(RegisterEventHotKey(A, controlKey, {}, nullptr, 0, &reference), paramErr);
    EXPECT_EQ(RegisterEventHotKey(A, controlKey, {}, GetApplicationEventTarget(), 0, nullptr), paramErr);
    EXPECT_EQ(reference, nullptr);
    EXPECT_TRUE(other.grabKey(KEY_A, control));
}

TEST_F(Registration, ofEveryKeyOfTheTableHoldsThatKey)
{
    for (const KeyCodeRow &row : keyCodeRows()) {
        if (row.evdev == 0)
            continue;
        const bool isOnKeyboards = row.evdev + evdevToX11 <= 255;
        EXPECT_EQ(add(row.code, controlKey | cmdKey, row.code), isOnKeyboards ? noErr : paramErr) << row.code;
        EXPECT_EQ(isOnKeyboards && other.isHeldElsewhere(row.evdev, control | XCB_MOD_MASK_4), isOnKeyboards)
            << row.code;
        UnregisterEventHotKey(last());
    }
}

TEST_F(Registration, ofTheOtherEnterKeyHoldsTheKeypads)
{
    EXPECT_EQ(add(OtherEnter, controlKey), noErr);
    EXPECT_FALSE(other.grabKey(KEY_KPENTER, control));
    EXPECT_EQ(add(Enter, controlKey), eventHotKeyExistsErr);
}

TEST_F(Registration, holdsTheKeysThatCountAsItToo)
{
    EXPECT_EQ(add(f13, controlKey), noErr);
    EXPECT_FALSE(other.grabKey(KEY_F13, control));
    EXPECT_FALSE(other.grabKey(KEY_SYSRQ, control));
}

TEST_F(Registration, givenUpIsFreeForOthersAtOnce)
{
    ASSERT_EQ(add(A, controlKey | optionKey), noErr);
    EXPECT_EQ(UnregisterEventHotKey(last()), noErr);
    for (const int locks : {0, int(XCB_MOD_MASK_LOCK), int(numLock), XCB_MOD_MASK_LOCK | numLock})
        EXPECT_TRUE(other.grabKey(KEY_A, quint16(control | XCB_MOD_MASK_1 | locks))) << locks;
}

TEST_F(Registration, givingUpAStaleOrNullReferenceIsAnErrorAndHarmsNothing)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    const EventHotKeyRef stale = last();
    ASSERT_EQ(UnregisterEventHotKey(stale), noErr);
    ASSERT_EQ(add(S, controlKey), noErr);
    EXPECT_EQ(UnregisterEventHotKey(stale), eventHotKeyInvalidErr);
    EXPECT_EQ(UnregisterEventHotKey(nullptr), eventHotKeyInvalidErr);
    EXPECT_FALSE(other.grabKey(KEY_S, control));
}

TEST_F(Registration, freeModifiersAreThoseWithWhichNobodyElseHoldsAKey)
{
    const QList<quint32> asked{controlKey, controlKey | optionKey, shiftKey | controlKey};
    EXPECT_EQ(LMFreeHotKeyModifiers({A, S}, asked), asked);
    ASSERT_TRUE(other.grabKey(KEY_S, control | numLock));
    EXPECT_EQ(LMFreeHotKeyModifiers({A, S}, asked), asked.mid(1));
    EXPECT_EQ(LMFreeHotKeyModifiers({A}, asked), asked);
    // Nothing that was tried is held.
    EXPECT_TRUE(other.grabKey(KEY_A, control));
    EXPECT_TRUE(other.grabKey(KEY_S, control | XCB_MOD_MASK_1));
    EXPECT_EQ(LMFreeHotKeyModifiers({A, S}, asked), asked.mid(2));
}

TEST_F(Registration, whatIsRegisteredIsFreeAndStaysRegisteredWhenItIsTried)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    EXPECT_EQ(LMFreeHotKeyModifiers({A, S}, {controlKey}), QList<quint32>{controlKey});
    EXPECT_FALSE(other.grabKey(KEY_A, control));
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), QList<quint32>{1});
}

TEST_F(Registration, modifiersAndKeysThatTheKeyboardLacksAreNotFree)
{
    EXPECT_EQ(LMFreeHotKeyModifiers({A, Unknown}, {controlKey}), QList<quint32>());
    EXPECT_EQ(LMFreeHotKeyModifiers({A}, {}), QList<quint32>());
}

TEST_F(Registration, andGivingUpManyTimesLeavesNothingBehind)
{
    const auto rounds = [this](int count) {
        for (int round = 0; round < count; ++round) {
            EventHotKeyRef reference = nullptr;
            const EventTargetRef target = GetApplicationEventTarget();
            ASSERT_EQ(RegisterEventHotKey(A, controlKey | optionKey, {}, target, round % 2, &reference), noErr);
            ASSERT_EQ(UnregisterEventHotKey(reference), noErr);
        }
    };
    rounds(100);
    const quint64 resources = other.resourcesOf(getpid());
    const size_t memory = allocatedMemory();
    rounds(1000);
    EXPECT_GT(resources, 0U);
    EXPECT_GT(memory, 0U);
    EXPECT_EQ(other.resourcesOf(getpid()), resources);
    EXPECT_LT(allocatedMemory(), memory + 1024);
    EXPECT_TRUE(other.grabKey(KEY_A, XCB_MOD_MASK_ANY));
}
