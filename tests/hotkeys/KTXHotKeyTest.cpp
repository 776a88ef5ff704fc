// The hot key class: its list, its numbers, and what changes a hot key.

#include "KTXHotKey.h"
#include "CapturedLog.h"
#include "KeyPress.h"
#include "Keyboard.h"
#include "OtherClient.h"
#include "Wait.h"
#include "platform/foundation/HotKeyEvents.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/NSNotificationCenter.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

constexpr quint32 A = 0, S = 1, D = 2, Unknown = 200;
constexpr quint16 serverControl = XCB_MOD_MASK_CONTROL;

class HotKey : public testing::Test
{
public:
    HotKey()
    {
        NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
            &observer, [this](const NSNotification &one) { posted.append(one); }, KTXHotKeyPressed);
        other.takeFocus();
    }
    ~HotKey() override { KTXHotKey::unregisterAllHotkeys(); }

    static std::shared_ptr<KTXHotKey> created(quint32 keyCode, quint32 modifiers = controlKey)
    {
        return KTXHotKey::createWithKeyCodeAndModifiers(keyCode, modifiers);
    }
    static size_t count() { return KTXHotKey::assignedHotKeys().size(); }
    bool isHeld(int evdev, quint16 modifiers = serverControl) { return other.isHeldElsewhere(evdev, modifiers); }
    /// Waits for the next notification; the hot key that it is of.
    KTXHotKey *next()
    {
        EXPECT_TRUE(waitUntil([this] { return !posted.isEmpty(); }));
        return posted.isEmpty() ? nullptr : posted.takeFirst().object.value<KTXHotKey *>();
    }

    QObject observer;
    QList<NSNotification> posted;
    OtherClient other;
};

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

TEST_F(HotKey, thatIsPressedIsTheObjectOfTheNotification)
{
    created(A)->registerAsHotKey();
    const auto second = created(S);
    second->registerAsHotKey();
    pressKey(KEY_S, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([this] { return !posted.isEmpty(); }));
    EXPECT_EQ(posted.first().name, "KTXHotKeyPressed");
    EXPECT_TRUE(posted.first().userInfo.isEmpty());
    EXPECT_EQ(next(), second.get());
    EXPECT_FALSE(second->keyWasPressed());
    EXPECT_EQ(KTXHotKeyInfo, "KTXHotKeyInfo");
}

TEST_F(HotKey, isNamedByItsPlaceSoRemovingAnotherBreaksTheNumbersBehindIt)
{
    const auto first = created(A);
    const auto second = created(S);
    const auto third = created(D);
    second->registerAsHotKey();
    first->removeFromAssignedHotKeys();
    EXPECT_EQ(KTXHotKey::assignedHotKeys(), (KTXHotKey::List{second, third}));
    EXPECT_EQ(second->hotKeyID().id, 1U);
    pressKey(KEY_S, {KEY_LEFTCTRL});
    EXPECT_EQ(next(), third.get());
    // What stands at its number goes, not it itself.
    second->removeFromAssignedHotKeys();
    EXPECT_EQ(KTXHotKey::assignedHotKeys(), KTXHotKey::List{second});
    EXPECT_THROW(second->removeFromAssignedHotKeys(), std::out_of_range);
    second->unregisterAsHotKey();
}

TEST_F(HotKey, whoseNumberNothingHasIsLoggedAndTheNextPressStillCounts)
{
    const auto first = created(A);
    const auto second = created(S);
    first->registerAsHotKey();
    second->registerAsHotKey();
    second->removeFromAssignedHotKeys();
    CapturedLog log;
    pressKey(KEY_S, {KEY_LEFTCTRL});
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_EQ(next(), first.get());
    EXPECT_TRUE(posted.isEmpty());
    EXPECT_EQ(log.linesContaining("hot key handler").size(), 1);
    second->unregisterAsHotKey();
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

TEST_F(HotKey, handlerIsInstalledOnceAndFailsLoudlyASecondTime)
{
    CapturedLog log;
    created(A);
    try {
        KTXHotKey::setHotKeyHandler();
        ADD_FAILURE() << "no assertion";
    } catch (const AssertionFailure &failure) {
        EXPECT_EQ(failure.file(), "KTXHotKey");
        EXPECT_EQ(failure.line(), 48);
        EXPECT_EQ(failure.description(), "HotKey Handler Installation error");
    }
}

TEST_F(HotKey, handlerLooksUpBeforeItAsksWhetherTheEventHadANumber)
{
    // An event without a number asks for number 0.
    EXPECT_THROW(KTXHotKeyHandler(nullptr, nullptr, nullptr), std::out_of_range);
    created(A);
    EXPECT_EQ(KTXHotKeyHandler(nullptr, nullptr, nullptr), paramErr);
    EXPECT_TRUE(posted.isEmpty());
}

TEST_F(HotKey, ownerMayRegisterUnregisterAndWaitWhileItIsToldOfAPress)
{
    const auto first = created(A);
    const auto second = created(S);
    first->registerAsHotKey();
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer,
        [&](const NSNotification &one) {
            if (one.object.value<KTXHotKey *>() != first.get())
                return;
            first->unregisterAsHotKey();
            EXPECT_EQ(second->registerAsHotKey(), noErr);
            pressKey(KEY_S, {KEY_LEFTCTRL});
            EXPECT_TRUE(waitUntil([this] { return posted.size() == 2; }));
        },
        KTXHotKeyPressed);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    pressKey(KEY_A, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([this] { return posted.size() == 2; }));
    EXPECT_EQ(next(), first.get());
    EXPECT_EQ(next(), second.get());
    EXPECT_FALSE(isHeld(KEY_A));
}

TEST_F(HotKey, namesItselfToTheSystemByTheClassesSignatureAndItsPlace)
{
    static EventHotKeyID named;
    const EventTypeSpec press{kEventClassKeyboard, kEventHotKeyPressed};
    const auto look = [](EventHandlerCallRef, EventRef event, void *) -> OSStatus {
        GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof named, nullptr, &named);
        return eventNotHandledErr;
    };
    created(A);
    created(S)->registerAsHotKey();
    ASSERT_EQ(InstallEventHandler(GetApplicationEventTarget(), look, 1, &press, nullptr, nullptr), noErr);
    pressKey(KEY_S, {KEY_LEFTCTRL});
    next();
    EXPECT_EQ(named, (EventHotKeyID{0x4B54586B, 1}));
}

TEST_F(HotKey, madeByItselfHasTheHandlerToo)
{
    KTXHotKey hotKey;
    hotKey.init();
    EXPECT_EQ(hotKey.hotKeyID(), EventHotKeyID());
    EXPECT_EQ(hotKey.registerAsHotKey(), noErr);
    hotKey.unregisterAsHotKey();
    EXPECT_THROW(KTXHotKey::setHotKeyHandler(), AssertionFailure);
}

TEST_F(HotKey, handlerDoesNotLookAtTheSignature)
{
    const auto hotKey = created(A);
    const OpaqueEventRef event{{kEventClassKeyboard, kEventHotKeyPressed}, {0, 0}};
    EXPECT_EQ(KTXHotKeyHandler(nullptr, &event, nullptr), noErr);
    EXPECT_EQ(next(), hotKey.get());
}
