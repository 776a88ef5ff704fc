#include "platform/foundation/hotkeys/internal/HotKeyEvents.h"

#include "platform/foundation/Boundary.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cstring>
#include <vector>

struct OpaqueEventTargetRef
{
};

namespace {

struct InstalledHandler
{
    EventHandlerUPP handler;
    std::vector<EventTypeSpec> types;
    void *userData;

    bool takes(const EventTypeSpec &wanted) const
    {
        return std::any_of(types.cbegin(), types.cend(), [&wanted](const EventTypeSpec &type) {
            return type.eventClass == wanted.eventClass && type.eventKind == wanted.eventKind;
        });
    }
};

std::vector<InstalledHandler> &applicationHandlers()
{
    static std::vector<InstalledHandler> handlers;
    return handlers;
}

bool isInstalled(EventHandlerUPP handler)
{
    const auto &handlers = applicationHandlers();
    return std::any_of(handlers.cbegin(), handlers.cend(),
        [handler](const InstalledHandler &installed) { return installed.handler == handler; });
}

quint32 &currentEventTime()
{
    static quint32 time = 0;
    return time;
}

EventHandlerRef referenceOf(size_t place)
{
    return reinterpret_cast<EventHandlerRef>(quintptr(place + 1));
}

void dispatch(const OpaqueEventRef &event)
{
    // A copy: a handler may install another.
    const std::vector<InstalledHandler> handlers = applicationHandlers();
    const QScopedValueRollback time(currentEventTime(), event.time);
    for (auto installed = handlers.crbegin(); installed != handlers.crend(); ++installed) {
        if (installed->takes(event.type)
            && installed->handler(nullptr, &event, installed->userData) != eventNotHandledErr)
            return;
    }
}

} // namespace

EventTargetRef GetApplicationEventTarget()
{
    static OpaqueEventTargetRef target;
    return &target;
}

OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, quint64 typeCount,
    const EventTypeSpec *types, void *userData, EventHandlerRef *handlerRef)
{
    if (target != GetApplicationEventTarget() || !handler || typeCount == 0 || !types)
        return paramErr;
    if (isInstalled(handler))
        return eventHandlerAlreadyInstalledErr;
    auto &handlers = applicationHandlers();
    handlers.push_back({handler, {types, types + typeCount}, userData});
    if (handlerRef)
        *handlerRef = referenceOf(handlers.size() - 1);
    return noErr;
}

OSStatus GetEventParameter(EventRef event, quint32 name, quint32 desiredType, quint32 *actualType, quint64 bufferSize,
    quint64 *actualSize, void *buffer)
{
    if (!event)
        return paramErr;
    if (name != kEventParamDirectObject || desiredType != typeEventHotKeyID)
        return eventParameterNotFoundErr;
    if (actualType)
        *actualType = typeEventHotKeyID;
    if (actualSize)
        *actualSize = sizeof event->hotKeyID;
    if (!buffer || bufferSize < sizeof event->hotKeyID)
        return paramErr;
    std::memcpy(buffer, &event->hotKeyID, sizeof event->hotKeyID);
    return noErr;
}

quint32 LMCurrentEventTime()
{
    return currentEventTime();
}

void dispatchHotKeyPressed(EventHotKeyID hotKeyID, quint32 time)
{
    runAtBoundary("hot key handler", [hotKeyID, time] {
        dispatch({{kEventClassKeyboard, kEventHotKeyPressed}, hotKeyID, time});
    });
}
