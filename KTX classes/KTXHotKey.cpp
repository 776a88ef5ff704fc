#include "KTXHotKey.h"

#include "KeyCodeTranslator.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

#include <QObject>
#include <stdexcept>
#include <utility>

namespace {

KTXHotKey::List &registry()
{
    static KTXHotKey::List list;
    return list;
}

std::shared_ptr<const NSValue> wrapped(EventHotKeyRef reference)
{
    return std::make_shared<const NSValue>(NSValue{"^{OpaqueEventHotKeyRef=}", reference});
}

/// Has every hot key of the list be unregistered when the system has given all of them up.
void forgetLostHotKeys()
{
    static QObject observer;
    const auto forget = [](const NSNotification &) {
        for (const auto &hotKey : registry())
            hotKey->setHotKeyRef(nullptr);
    };
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(&observer, forget, LMHotKeysDidGo);
}

} // namespace

void KTXHotKey::initialize()
{
    static bool isInitialized = false;
    if (isInitialized)
        return;
    setHotKeyHandler();
    registry().clear();
    forgetLostHotKeys();
    isInitialized = true;
}

KTXHotKey::List &KTXHotKey::assignedHotKeys()
{
    initialize();
    return registry();
}

void KTXHotKey::setHotKeyHandler()
{
    const EventTypeSpec types[]{{kEventClassKeyboard, kEventHotKeyPressed}};
    // What is the class's own is the handler's data.
    List *const ownClass = &registry();
    const OSStatus status =
        InstallEventHandler(GetApplicationEventTarget(), KTXHotKeyHandler, 1, types, ownClass, nullptr);
    if (status != noErr) {
        handleFailureInMethodObjectFileLineNumberDescription(QStringLiteral("setHotKeyHandler"), ownClass,
            QStringLiteral("KTXHotKey"), 48, QStringLiteral("HotKey Handler Installation error"));
    }
}

std::shared_ptr<KTXHotKey> KTXHotKey::createWithKeyCodeAndModifiers(VirtualKeyCode keyCode, quint32 modifiers)
{
    List &all = assignedHotKeys();
    const auto hotKey = std::make_shared<KTXHotKey>();
    hotKey->init();
    hotKey->setKeycode(keyCode);
    hotKey->setModifiers(modifiers);
    hotKey->setHotKeyRef(nullptr);
    hotKey->setHotKeyID({signature, quint32(all.size())});
    all.push_back(hotKey);
    return all.back();
}

bool KTXHotKey::isAvailableWithKeyCodeAndModifiers(VirtualKeyCode keyCode, quint32 modifiers)
{
    initialize();
    EventHotKeyRef reference = nullptr;
    const OSStatus status = RegisterEventHotKey(
        keyCode, modifiers, {signature, probeID}, GetApplicationEventTarget(), kEventHotKeyExclusive, &reference);
    if (status != noErr)
        return false;
    UnregisterEventHotKey(reference);
    return true;
}

void KTXHotKey::unregisterAllHotkeys()
{
    const List snapshot = assignedHotKeys();
    for (const auto &hotKey : snapshot)
        hotKey->unregisterAsHotKey();
    assignedHotKeys().clear();
}

KTXHotKey::KTXHotKey()
{
    initialize();
}

bool KTXHotKey::init()
{
    exclusive_ = 0;
    return true;
}

OSStatus KTXHotKey::registerAsHotKey()
{
    if (isHotKeyRegistered())
        unregisterAsHotKey();
    EventHotKeyRef reference = nullptr;
    const OSStatus status = RegisterEventHotKey(
        keycode_, modifiers_, hotKeyID_, GetApplicationEventTarget(), kEventHotKeyNoOptions, &reference);
    setHotKeyRef(status == noErr ? wrapped(reference) : nullptr);
    return status;
}

void KTXHotKey::unregisterAsHotKey()
{
    const auto reference = hotKeyRef();
    UnregisterEventHotKey(reference ? static_cast<EventHotKeyRef>(reference->pointerValue) : nullptr);
    setHotKeyRef(nullptr);
}

void KTXHotKey::removeFromAssignedHotKeys()
{
    List &all = assignedHotKeys();
    if (hotKeyID_.id >= all.size())
        throw std::out_of_range("no hot key has this number");
    all.erase(all.begin() + hotKeyID_.id);
}

bool KTXHotKey::setToKeyCodeWithModifiersForceChanges(VirtualKeyCode keyCode, quint32 modifiers, bool forceChanges)
{
    if (modifiers == 0)
        return false;
    if (keyCode == keycode_ && modifiers == modifiers_)
        return isHotKeyRegistered();
    const auto probe = createWithKeyCodeAndModifiers(keyCode, modifiers);
    const bool isAvailable = isAvailableWithKeyCodeAndModifiers(keyCode, modifiers);
    if (isAvailable || forceChanges) {
        setKeycode(keyCode);
        setModifiers(modifiers);
        if (registerAsHotKey() != noErr)
            setHotKeyRef(nullptr);
    }
    probe->removeFromAssignedHotKeys();
    return isAvailable;
}

QString KTXHotKey::modifierGlyphs() const
{
    return ::modifierGlyphs(modifiers_);
}

QString KTXHotKey::description() const
{
    return modifierGlyphs() + KeyCodeTranslator::stringForKeyCodeWithModifierFlags(keycode_, 0);
}

OSStatus KTXHotKeyHandler(EventHandlerCallRef, EventRef event, void *)
{
    EventHotKeyID hotKeyID;
    const OSStatus status = GetEventParameter(
        event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof hotKeyID, nullptr, &hotKeyID);
    // The look-up comes first, whatever the status: an event without a number asks for number 0.
    const std::shared_ptr<KTXHotKey> hotKey = KTXHotKey::assignedHotKeys().at(hotKeyID.id);
    if (status != noErr)
        return status;
    NSNotificationCenter::defaultCenter()->postNotificationNameObject(
        KTXHotKeyPressed, QVariant::fromValue(hotKey.get()));
    return noErr;
}
