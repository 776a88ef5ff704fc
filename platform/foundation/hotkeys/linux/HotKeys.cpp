#include "platform/foundation/hotkeys/HotKeys.h"

#include "platform/foundation/hotkeys/linux/HotKeyService.h"

OSStatus RegisterEventHotKey(VirtualKeyCode keyCode, quint32 modifiers, EventHotKeyID hotKeyID, EventTargetRef target,
    quint32 options, EventHotKeyRef *hotKeyRef)
{
    const bool hasOptions = options == kEventHotKeyNoOptions || options == kEventHotKeyExclusive;
    if (target != GetApplicationEventTarget() || !hotKeyRef || !hasOptions || !isHotKeyCombination(keyCode, modifiers))
        return paramErr;
    return HotKeyService::instance().add(keyCode, modifiers, hotKeyID, hotKeyRef);
}

OSStatus LMHotKeyStatus(EventHotKeyRef hotKeyRef)
{
    return HotKeyService::instance().status(hotKeyRef);
}

QList<quint32> LMFreeHotKeyModifiers(const QList<VirtualKeyCode> &keyCodes, const QList<quint32> &modifiers)
{
    return HotKeyService::instance().freeModifiers(keyCodes, modifiers);
}

OSStatus UnregisterEventHotKey(EventHotKeyRef hotKeyRef)
{
    return HotKeyService::instance().remove(hotKeyRef);
}
