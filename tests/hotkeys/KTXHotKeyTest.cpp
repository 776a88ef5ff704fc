// The hot key class: its list, its numbers, and what changes a hot key.

#include "CapturedLog.h"
#include "HotKeyObjects.h"
#include "KeyPress.h"
#include "Keyboard.h"

#include <QFile>
#include <linux/input-event-codes.h>

namespace {

constexpr quint32 A = 0, S = 1, D = 2, Unknown = 200;
constexpr quint16 serverControl = XCB_MOD_MASK_CONTROL;

class HotKey : public HotKeyObjects
{
};

/// How often this process has written to anything, the X server included.
qint64 writesOfThisProcess()
{
    QFile file("/proc/self/io");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    constexpr QByteArrayView title = "syscw: ";
    const qsizetype start = content.indexOf(title) + title.size();
    return content.mid(start, content.indexOf('\n', start) - start).toLongLong();
}

} // namespace

TEST_F(HotKey, isCreatedUnregisteredAtTheEndOfTheList)
{
    const auto first = created(A, controlKey | optionKey);
    const auto second = created(S);
    EXPECT_EQ(KTXHotKey::assignedHotKeys(), (KTXHotKey::List{first, second}));
    EXPECT_EQ(first->keycode(), A);
    EXPECT_EQ(first->modifiers(), controlKey | optionKey);
    EXPECT_EQ(first->hotKeyID(), (EventHotKeyID{0x4B54586B, 0}));
    EXPECT_EQ(second->hotKeyID(), (EventHotKeyID{0x4B54586B, 1}));
    EXPECT_FALSE(first->isHotKeyRegistered());
    EXPECT_EQ(first->hotKeyRef(), nullptr);
    EXPECT_EQ(first->exclusive(), 0U);
    EXPECT_FALSE(first->keyWasPressed());
    EXPECT_FALSE(first->keyWasReleased());
    EXPECT_FALSE(isHeld(KEY_A, serverControl | XCB_MOD_MASK_1));
}

TEST_F(HotKey, keepsWhatItsOwnerSetsAndDoesNotGoByIt)
{
    const auto hotKey = created(A);
    hotKey->setExclusive(1);
    hotKey->setKeyWasPressed(true);
    EXPECT_EQ(hotKey->registerAsHotKey(), noErr);
    EXPECT_EQ(hotKey->exclusive(), 1U);
    EXPECT_TRUE(hotKey->keyWasPressed());
    hotKey->init();
    EXPECT_EQ(hotKey->exclusive(), 0U);
}

TEST_F(HotKey, holdsItsReferenceExactlyWhileItIsRegistered)
{
    const auto hotKey = created(A);
    EXPECT_EQ(hotKey->registerAsHotKey(), noErr);
    ASSERT_TRUE(hotKey->isHotKeyRegistered());
    EXPECT_EQ(hotKey->hotKeyRef()->objCType, "^{OpaqueEventHotKeyRef=}");
    EXPECT_NE(hotKey->hotKeyRef()->pointerValue, nullptr);
    EXPECT_TRUE(isHeld(KEY_A));
    hotKey->unregisterAsHotKey();
    EXPECT_FALSE(hotKey->isHotKeyRegistered());
    EXPECT_FALSE(isHeld(KEY_A));
}

TEST_F(HotKey, registeredAgainGivesItsOldCombinationUp)
{
    const auto hotKey = created(A);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    hotKey->setKeycode(S);
    EXPECT_EQ(hotKey->registerAsHotKey(), noErr);
    EXPECT_FALSE(isHeld(KEY_A));
    EXPECT_TRUE(isHeld(KEY_S));
}

TEST_F(HotKey, thatCannotBeRegisteredTellsWhyAndIsUnregistered)
{
    const auto hotKey = created(A);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    hotKey->setKeycode(S);
    ASSERT_TRUE(other.grabKey(KEY_S, serverControl));
    EXPECT_EQ(hotKey->registerAsHotKey(), -9878);
    EXPECT_FALSE(hotKey->isHotKeyRegistered());
    hotKey->setKeycode(Unknown);
    EXPECT_EQ(hotKey->registerAsHotKey(), paramErr);
}

TEST_F(HotKey, thatWasNeverRegisteredIsUnregisteredWithoutHarm)
{
    const auto hotKey = created(A);
    hotKey->unregisterAsHotKey();
    EXPECT_EQ(hotKey->hotKeyRef(), nullptr);
}

TEST_F(HotKey, isAvailableUntilSomebodyHoldsIt)
{
    EXPECT_TRUE(KTXHotKey::isAvailableWithKeyCodeAndModifiers(A, controlKey));
    EXPECT_FALSE(isHeld(KEY_A));
    EXPECT_EQ(count(), 0U);
    const auto hotKey = created(A);
    EXPECT_TRUE(KTXHotKey::isAvailableWithKeyCodeAndModifiers(A, controlKey));
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    EXPECT_FALSE(KTXHotKey::isAvailableWithKeyCodeAndModifiers(A, controlKey));
    ASSERT_TRUE(other.grabKey(KEY_S, serverControl));
    EXPECT_FALSE(KTXHotKey::isAvailableWithKeyCodeAndModifiers(S, controlKey));
    EXPECT_FALSE(KTXHotKey::isAvailableWithKeyCodeAndModifiers(Unknown, controlKey));
}

TEST_F(HotKey, isNotChangedToNoModifiers)
{
    const auto hotKey = created(A);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    const auto reference = hotKey->hotKeyRef();
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(S, 0, true));
    EXPECT_EQ(hotKey->keycode(), A);
    EXPECT_EQ(hotKey->modifiers(), controlKey);
    EXPECT_EQ(hotKey->hotKeyRef(), reference);
}

TEST_F(HotKey, changedToWhatItIsTellsWhetherItIsRegistered)
{
    const auto hotKey = created(A);
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(A, controlKey, true));
    EXPECT_FALSE(hotKey->isHotKeyRegistered());
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    const auto reference = hotKey->hotKeyRef();
    EXPECT_TRUE(hotKey->setToKeyCodeWithModifiersForceChanges(A, controlKey, false));
    EXPECT_EQ(hotKey->hotKeyRef(), reference);
}

TEST_F(HotKey, changedToWhatItIsAsksTheServerNothing)
{
    const auto hotKey = created(A);
    for (const bool isRegistered : {false, true}) {
        const qint64 before = writesOfThisProcess();
        for (const bool forced : {false, true})
            EXPECT_EQ(hotKey->setToKeyCodeWithModifiersForceChanges(A, controlKey, forced), isRegistered);
        EXPECT_EQ(writesOfThisProcess(), before);
        hotKey->registerAsHotKey();
        EXPECT_GT(writesOfThisProcess(), before) << "what is asked is counted";
    }
}

TEST_F(HotKey, changesToAFreeCombinationAndRegistersIt)
{
    const auto hotKey = created(A);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    EXPECT_TRUE(hotKey->setToKeyCodeWithModifiersForceChanges(S, controlKey | shiftKey, false));
    EXPECT_EQ(hotKey->keycode(), S);
    EXPECT_EQ(hotKey->modifiers(), controlKey | shiftKey);
    EXPECT_TRUE(hotKey->isHotKeyRegistered());
    EXPECT_TRUE(isHeld(KEY_S, serverControl | XCB_MOD_MASK_SHIFT));
    EXPECT_FALSE(isHeld(KEY_A));
    EXPECT_EQ(KTXHotKey::assignedHotKeys(), KTXHotKey::List{hotKey});
}

TEST_F(HotKey, isNotChangedToATakenCombination)
{
    const auto hotKey = created(A);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    ASSERT_TRUE(other.grabKey(KEY_S, serverControl));
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(S, controlKey, false));
    EXPECT_EQ(hotKey->keycode(), A);
    EXPECT_TRUE(isHeld(KEY_A));
    EXPECT_TRUE(hotKey->isHotKeyRegistered());
    EXPECT_EQ(count(), 1U);
}

TEST_F(HotKey, forcedToATakenCombinationIsChangedAndUnregistered)
{
    const auto hotKey = created(A);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    ASSERT_TRUE(other.grabKey(KEY_S, serverControl));
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(S, controlKey, true));
    EXPECT_EQ(hotKey->keycode(), S);
    EXPECT_FALSE(hotKey->isHotKeyRegistered());
    EXPECT_FALSE(isHeld(KEY_A));
    EXPECT_EQ(count(), 1U);
}

TEST_F(HotKey, forcedToACombinationThatIsTakenOnlyByItselfIsRegisteredAndStillToldTaken)
{
    // The other code of the Enter keys is another combination of the same keys.
    constexpr quint32 enter = 76, otherEnter = 52;
    const auto hotKey = created(enter);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(otherEnter, controlKey, true));
    EXPECT_EQ(hotKey->keycode(), otherEnter);
    EXPECT_TRUE(hotKey->isHotKeyRegistered());
}

TEST_F(HotKey, thatIsLetGoLeavesItsCombinationRegistered)
{
    auto hotKey = created(A);
    hotKey->registerAsHotKey();
    const auto reference = static_cast<EventHotKeyRef>(hotKey->hotKeyRef()->pointerValue);
    hotKey->removeFromAssignedHotKeys();
    hotKey.reset();
    EXPECT_TRUE(isHeld(KEY_A));
    EXPECT_EQ(UnregisterEventHotKey(reference), noErr);
}

TEST_F(HotKey, allAreUnregisteredAndTheNumbersBeginAnew)
{
    const auto first = created(A);
    const auto second = created(S);
    first->registerAsHotKey();
    second->registerAsHotKey();
    const KTXHotKey::List *list = &KTXHotKey::assignedHotKeys();
    KTXHotKey::unregisterAllHotkeys();
    EXPECT_FALSE(first->isHotKeyRegistered());
    EXPECT_FALSE(second->isHotKeyRegistered());
    EXPECT_FALSE(isHeld(KEY_A));
    EXPECT_FALSE(isHeld(KEY_S));
    EXPECT_EQ(list, &KTXHotKey::assignedHotKeys());
    EXPECT_EQ(count(), 0U);
    EXPECT_EQ(created(D)->hotKeyID().id, 0U);
}

TEST_F(HotKey, isDescribedByGlyphsAndKeyName)
{
    EXPECT_EQ(created(A, 0x1800)->description(), u"⌃⌥A");
    EXPECT_EQ(created(A, 0x1800)->modifierGlyphs(), u"⌃⌥");
    EXPECT_EQ(created(S, controlKey | shiftKey | optionKey | cmdKey)->description(), u"⇧⌃⌥⌘S");
    // The low 16 bits are the key.
    EXPECT_EQ(created(0x10001, controlKey)->description(), u"⌃S");
}
