#include "HotKeySession.h"

#include "KeyPress.h"
#include "Wait.h"

#include <linux/input-event-codes.h>
#include <utility>

namespace {

constexpr quint32 signature = fourCharacterCode("test"), markID = 4711;
constexpr VirtualKeyCode markKeyCode = 101;

QList<quint32> &heard()
{
    static QList<quint32> ids;
    return ids;
}

OSStatus hear(EventHandlerCallRef, EventRef event, void *)
{
    EventHotKeyID id;
    EXPECT_EQ(
        GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof id, nullptr, &id), noErr);
    EXPECT_EQ(id.signature, signature);
    heard().append(id.id);
    return noErr;
}

} // namespace

HotKeySession::HotKeySession()
{
    const EventTypeSpec press{kEventClassKeyboard, kEventHotKeyPressed};
    InstallEventHandler(GetApplicationEventTarget(), hear, 1, &press, nullptr, nullptr);
    heard().clear();
    other.takeFocus();
}

HotKeySession::~HotKeySession()
{
    for (const EventHotKeyRef reference : std::as_const(references_))
        UnregisterEventHotKey(reference);
}

OSStatus HotKeySession::add(VirtualKeyCode keyCode, quint32 modifiers, quint32 id, quint32 options)
{
    EventHotKeyRef reference = nullptr;
    const OSStatus status =
        RegisterEventHotKey(keyCode, modifiers, {signature, id}, GetApplicationEventTarget(), options, &reference);
    EXPECT_EQ(status == noErr, reference != nullptr);
    if (status == noErr)
        references_.append(reference);
    return status;
}

bool HotKeySession::waitForPresses(int count)
{
    constexpr int milliseconds = 20000;
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(milliseconds);
    // In a run loop that sleeps until it is woken, as a program's does.
    while (heard().size() < count && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return heard().size() >= count;
}

QList<quint32> HotKeySession::pressed()
{
    // One more press (of keys that every keyboard has in the same place), behind which nothing is left that was pressed
    // before. A test may hold Control meanwhile.
    EventHotKeyRef marks[]{nullptr, nullptr};
    const EventTargetRef target = GetApplicationEventTarget();
    EXPECT_EQ(RegisterEventHotKey(markKeyCode, shiftKey, {signature, markID}, target, 0, &marks[0]), noErr);
    EXPECT_EQ(
        RegisterEventHotKey(markKeyCode, controlKey | shiftKey, {signature, markID}, target, 0, &marks[1]), noErr);
    pressKey(KEY_F9, {KEY_LEFTSHIFT});
    EXPECT_TRUE(waitUntil([] { return heard().contains(markID); }));
    for (const EventHotKeyRef mark : marks)
        EXPECT_EQ(UnregisterEventHotKey(mark), noErr);
    QList<quint32> ids = std::exchange(heard(), {});
    ids.removeAll(markID);
    return ids;
}
