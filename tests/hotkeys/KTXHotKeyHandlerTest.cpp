// What becomes of a press: the handler, the number that it goes by, and the notification.

#include "CapturedLog.h"
#include "HotKeyObjects.h"
#include "KeyPress.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/hotkeys/internal/HotKeyEvents.h"

#include <linux/input-event-codes.h>
#include <stdexcept>

namespace {

constexpr quint32 A = 0, S = 1, D = 2;

class HotKey : public HotKeyObjects
{
};

} // namespace

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
