#include "agent/AgentHotKeys.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXHotKey.h"
#include "platform/foundation/Description.h"
#include "platform/foundation/NSLog.h"
#include "platform/foundation/NSNotificationCenter.h"

#include <algorithm>
#include <utility>

AgentHotKeys::AgentHotKeys()
{
    for (const KTXActionKey &action : KTXActionKeys())
        keys_.append({action.preferenceName, KTXHotKey::createWithKeyCodeAndModifiers(action.defaultKeyCode, 0)});
    NSNotificationCenter *centre = NSNotificationCenter::defaultCenter();
    centre->addObserverSelectorNameObject(
        this, [this](const NSNotification &notification) { handlePress(notification.object); }, KTXHotKeyPressed);
    centre->addObserverSelectorNameObject(
        this, [this](const NSNotification &) { handleLoss(); }, LMHotKeysDidGo);
}

AgentHotKeys::~AgentHotKeys()
{
    KTXHotKey::unregisterAllHotkeys();
}

void AgentHotKeys::apply(const QVariantMap &settings)
{
    const auto modifiers = quint32(settings.value(KTXModifierMask).toUInt());
    for (ActionKey &key : keys_)
        change(key, quint32(intValue(settings.value(key.action).toMap().value(KTXKeycode))), modifiers);
    if (modifiers == 0 && !std::exchange(saidNoModifiers_, true))
        NSLog(QStringLiteral("lumaroo: agent: no modifiers are chosen, so no key is registered"));
    if (modifiers == 0)
        return;
    saidNoModifiers_ = false;
    // Only now, so that two actions can exchange their keys.
    for (ActionKey &key : keys_)
        registerKey(key);
}

void AgentHotKeys::change(ActionKey &key, quint32 keyCode, quint32 modifiers)
{
    if (key.hotKey->keycode() == keyCode && key.hotKey->modifiers() == modifiers)
        return;
    key.hotKey->unregisterAsHotKey();
    key.hotKey->setKeycode(keyCode);
    key.hotKey->setModifiers(modifiers);
    key.status = noErr;
}

void AgentHotKeys::registerKey(ActionKey &key)
{
    if (key.hotKey->isHotKeyRegistered())
        return;
    const OSStatus before = std::exchange(key.status, key.hotKey->registerAsHotKey());
    // Where there are no hot keys at all, that has been said once for all of them.
    if (key.status != noErr && key.status != before && key.status != eventInternalErr) {
        NSLog(QStringLiteral("lumaroo: agent: %1 (%2) is not registered: %3")
                  .arg(key.hotKey->description(), key.action, refusal(key)));
    }
}

void AgentHotKeys::release()
{
    for (ActionKey &key : keys_)
        key.hotKey->unregisterAsHotKey();
}

void AgentHotKeys::handlePress(const QVariant &hotKey)
{
    for (const ActionKey &key : std::as_const(keys_)) {
        if (hotKey.value<KTXHotKey *>() == key.hotKey.get())
            Q_EMIT pressed(key.action, key.hotKey->description());
    }
}

void AgentHotKeys::handleLoss()
{
    release();
    for (ActionKey &key : keys_)
        key.status = eventInternalErr;
}

QList<AgentHotKey> AgentHotKeys::hotKeys() const
{
    QList<AgentHotKey> hotKeys;
    for (const ActionKey &key : keys_)
        hotKeys.append({key.action, key.hotKey->keycode(), key.hotKey->description(), refusal(key)});
    return hotKeys;
}

bool AgentHotKeys::isDuplicate(const ActionKey &key) const
{
    return std::any_of(keys_.cbegin(), keys_.cend(),
        [&key](const ActionKey &other) { return &other != &key && other.hotKey->keycode() == key.hotKey->keycode(); });
}

QString AgentHotKeys::refusal(const ActionKey &key) const
{
    if (key.hotKey->isHotKeyRegistered())
        return {};
    if (key.hotKey->modifiers() == 0)
        return QStringLiteral("no modifiers are chosen");
    if (key.status == eventHotKeyExistsErr)
        return isDuplicate(key) ? QStringLiteral("another action has the same key")
                                : QStringLiteral("another program holds it");
    if (key.status == paramErr)
        return QStringLiteral("the keyboard has no such key");
    return QStringLiteral("there are no hot keys in this session");
}
