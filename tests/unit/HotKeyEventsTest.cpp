// Handlers of hot key presses, and what they can ask an event.

#include "platform/foundation/hotkeys/internal/HotKeyEvents.h"
#include "CapturedLog.h"

#include <array>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

constexpr EventTypeSpec press{kEventClassKeyboard, kEventHotKeyPressed};
constexpr OpaqueEventRef event{press, {1, 2}};

QStringList &calls()
{
    static QStringList all;
    return all;
}

OSStatus older(EventHandlerCallRef, EventRef, void *userData)
{
    calls().append(QString("older %1").arg(*static_cast<int *>(userData)));
    return noErr;
}

OSStatus newer(EventHandlerCallRef, EventRef asked, void *)
{
    calls().append("newer");
    return asked->hotKeyID.id == 1 ? eventNotHandledErr : noErr;
}

OSStatus throwing(EventHandlerCallRef, EventRef asked, void *)
{
    if (asked->hotKeyID.id == 3)
        throw std::out_of_range("three");
    return eventNotHandledErr;
}

OSStatus ofAnotherKind(EventHandlerCallRef, EventRef, void *)
{
    calls().append("another kind");
    return noErr;
}

OSStatus never(EventHandlerCallRef, EventRef, void *)
{
    ADD_FAILURE();
    return noErr;
}

} // namespace

TEST(HotKeyEvents, newestHandlerIsAskedFirstAndPassesOnWhatItDoesNotHandle)
{
    int data = 5;
    EventHandlerRef reference = nullptr;
    const EventTypeSpec otherKind{kEventClassKeyboard, kEventHotKeyPressed + 1};
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), older, 1, &press, &data, &reference), noErr);
    EXPECT_NE(reference, nullptr);
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), newer, 1, &press, nullptr, nullptr), noErr);
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), ofAnotherKind, 1, &otherKind, nullptr, nullptr), noErr);
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), throwing, 1, &press, nullptr, nullptr), noErr);

    dispatchHotKeyPressed({0, 1});
    dispatchHotKeyPressed({0, 2});
    EXPECT_EQ(calls(), QStringList({"newer", "older 5", "newer"}));

    CapturedLog log;
    dispatchHotKeyPressed({0, 3});
    dispatchHotKeyPressed({0, 2});
    EXPECT_EQ(calls().size(), 4);
    EXPECT_EQ(log.linesContaining("three").size(), 1);
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), older, 1, &press, nullptr, nullptr),
        eventHandlerAlreadyInstalledErr);
}

TEST(HotKeyEvents, handlerNeedsATargetAndTypes)
{
    EXPECT_EQ(InstallEventHandler(nullptr, never, 1, &press, nullptr, nullptr), paramErr);
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), nullptr, 1, &press, nullptr, nullptr), paramErr);
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), never, 0, &press, nullptr, nullptr), paramErr);
    EXPECT_EQ(InstallEventHandler(GetApplicationEventTarget(), never, 1, nullptr, nullptr, nullptr), paramErr);
}

TEST(HotKeyEvents, eventTellsWhoseItIs)
{
    EventHotKeyID id;
    quint32 type = 0;
    quint64 size = 0;
    EXPECT_EQ(
        GetEventParameter(&event, kEventParamDirectObject, typeEventHotKeyID, &type, sizeof id, &size, &id), noErr);
    EXPECT_EQ(id, (EventHotKeyID{1, 2}));
    EXPECT_EQ(type, 0x686B6964U); // hkid
    EXPECT_EQ(size, 8U);
}

TEST(HotKeyEvents, eventHasNoOtherParameter)
{
    std::array<char, 64> buffer{};
    EXPECT_EQ(GetEventParameter(&event, kEventParamDirectObject, 1, nullptr, 64, nullptr, buffer.data()),
        eventParameterNotFoundErr);
    EXPECT_EQ(GetEventParameter(&event, 1, typeEventHotKeyID, nullptr, 64, nullptr, buffer.data()),
        eventParameterNotFoundErr);
}

TEST(HotKeyEvents, eventNeedsRoomForItsAnswer)
{
    EventHotKeyID id;
    quint64 size = 0;
    EXPECT_EQ(GetEventParameter(&event, kEventParamDirectObject, typeEventHotKeyID, nullptr, 7, &size, &id), paramErr);
    EXPECT_EQ(size, 8U);
    EXPECT_EQ(id, EventHotKeyID());
    EXPECT_EQ(
        GetEventParameter(&event, kEventParamDirectObject, typeEventHotKeyID, nullptr, 8, nullptr, nullptr), paramErr);
    EXPECT_EQ(
        GetEventParameter(nullptr, kEventParamDirectObject, typeEventHotKeyID, nullptr, 8, nullptr, &id), paramErr);
}

TEST(HotKeyEvents, constantsAreTheirFourCharacters)
{
    EXPECT_EQ(kEventClassKeyboard, 0x6B657962U);
    EXPECT_EQ(kEventParamDirectObject, 0x2D2D2D2DU);
    EXPECT_EQ(fourCharacterCode("KTXk"), 0x4B54586BU);
}

TEST(HotKeyEvents, tellTheirTimeWhileTheirHandlersAreCalled)
{
    static QList<quint32> times;
    const auto look = [](EventHandlerCallRef, EventRef, void *) -> OSStatus {
        times.append(LMCurrentEventTime());
        if (times.size() > 1)
            return noErr;
        dispatchHotKeyPressed({2, 2}, 200);
        times.append(LMCurrentEventTime());
        return noErr;
    };
    ASSERT_EQ(InstallEventHandler(GetApplicationEventTarget(), look, 1, &press, nullptr, nullptr), noErr);
    EXPECT_EQ(LMCurrentEventTime(), 0U);
    dispatchHotKeyPressed({2, 1}, 100);
    EXPECT_EQ(times, (QList<quint32>{100, 200, 100}));
    EXPECT_EQ(LMCurrentEventTime(), 0U);
}
