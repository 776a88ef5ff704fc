#include "agent/keys/AgentHotKeys.h"

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXConstants.h"
#include "KTXHotKey.h"
#include "KTXModifiers.h"
#include "agent/keys/ActionKeyTable.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/system/NSLog.h"

#include <algorithm>
#include <utility>

namespace {

/// Those that programs rarely use with the keys of movement, which leaves out Control and Shift by themselves: every
/// program has uses for them.
const QList<quint32> &proposedModifiers()
{
    constexpr quint32 command = KTXCommandModifier, control = KTXControlModifier, option = KTXOptionModifier,
                      shift = KTXShiftModifier;
    static const QList<quint32> masks{command | control, command | control | option, command | option,
        command | control | shift, command | option | shift, command | shift, control | option | shift,
        command | control | option | shift, command};
    return masks;
}

/// Whether a key types a character; where not in this layout, in another.
bool typesCharacter(VirtualKeyCode keyCode)
{
    const VirtualKey *key = virtualKey(pressedKeyCode(keyCode));
    // The rows of letters and digits have names that begin with this.
    return key && (key->xkbName[0] == 'A' || (key->character >= u' ' && key->character < 0x7f));
}

} // namespace

AgentHotKeys::AgentHotKeys()
{
    for (const KTXActionKey &action : KTXActionKeys())
        keys_.append({action.preferenceName, KTXHotKey::createWithKeyCodeAndModifiers(action.defaultKeyCode, 0)});
    NSNotificationCenter *centre = NSNotificationCenter::defaultCenter();
    centre->addObserverSelectorNameObject(
        this, [this](const NSNotification &notification) { handlePress(notification.object); }, KTXHotKeyPressed);
    centre->addObserverSelectorNameObject(
        this, [this](const NSNotification &) { handleLoss(); }, LMHotKeysDidGo);
    centre->addObserverSelectorNameObject(
        this, [this](const NSNotification &) { registerKeys(); }, LMHotKeysDidChange);
}

AgentHotKeys::~AgentHotKeys()
{
    KTXHotKey::unregisterAllHotkeys();
}

void AgentHotKeys::apply(const QVariantMap &settings)
{
    const auto modifiers = quint32(settings.value(KTXModifierMask).toUInt());
    areWanted_ = true;
    isDoublePressAlone_ = settings.value(KTXActivateDoubleClick).toBool();
    for (ActionKey &key : keys_)
        give(key, actionKeyCode(settings, key.action), modifiers);
    // Only now, so that two actions can exchange their keys.
    registerKeys();
    if (modifiers == 0 && !saidNoModifiers_)
        NSLog(QStringLiteral("lumaroo: agent: no modifiers are chosen, so no key is registered"));
    saidNoModifiers_ = modifiers == 0;
}

void AgentHotKeys::give(ActionKey &key, VirtualKeyCode keyCode, quint32 modifiers)
{
    const bool isChanged = key.hotKey->keycode() != keyCode || key.hotKey->modifiers() != modifiers;
    key.hotKey->setKeycode(keyCode);
    key.hotKey->setModifiers(modifiers);
    const bool isToGo = isDoublePressAlone_ || isAnotherActions(key);
    if (isChanged || (isToGo && key.hotKey->isHotKeyRegistered())) {
        key.hotKey->unregisterAsHotKey();
        key.refusal = Refusal::GivenUp;
    }
}

void AgentHotKeys::registerKeys()
{
    // The keyboard changes while nobody wants them too.
    if (!areWanted_)
        return;
    registerAll();
    lookForFreeModifiers();
    Q_EMIT changed();
}

void AgentHotKeys::lookForFreeModifiers()
{
    const auto end = keys_.cbegin() + KTXMovementKeyCount;
    const bool isAnyHeld =
        std::any_of(keys_.cbegin(), end, [](const ActionKey &key) { return refusalNow(key) == Refusal::OtherProgram; });
    freeModifiers_.clear();
    if (!isAnyHeld)
        return;
    QList<VirtualKeyCode> keyCodes;
    std::transform(
        keys_.cbegin(), end, std::back_inserter(keyCodes), [](const ActionKey &key) { return key.hotKey->keycode(); });
    freeModifiers_ = LMFreeHotKeyModifiers(keyCodes, proposedModifiers());
}

void AgentHotKeys::registerAll()
{
    for (ActionKey &key : keys_) {
        registerKey(key);
        // Then there are none for the others either, and each attempt may take its time.
        if (key.refusal == Refusal::NoHotKeys) {
            handleLoss();
            return;
        }
    }
}

void AgentHotKeys::registerKey(ActionKey &key)
{
    if (refusalNow(key) == Refusal::None)
        return;
    const Refusal before = std::exchange(key.refusal, registration(key));
    // Where no key can be registered, that has been said once for all of them.
    const bool isOfThisKey =
        key.refusal != Refusal::None && !isOfAllKeys(key.refusal) && key.refusal != Refusal::NoHotKeys;
    if (isOfThisKey && key.refusal != before) {
        NSLog(QStringLiteral("lumaroo: agent: %1 (%2) is not registered: %3")
                  .arg(key.hotKey->description(), key.action, text(key.refusal)));
    }
}

AgentHotKeys::Refusal AgentHotKeys::registration(const ActionKey &key) const
{
    if (key.hotKey->modifiers() == 0)
        return Refusal::NoModifiers;
    if (isDoublePressAlone_)
        return Refusal::DoublePressAlone;
    if (isAnotherActions(key))
        return Refusal::OtherAction;
    if (key.hotKey->modifiers() == KTXShiftModifier && typesCharacter(key.hotKey->keycode()))
        return Refusal::Typing;
    return refusalOf(key.hotKey->registerAsHotKey());
}

/// Whether the X server had no say in it.
bool AgentHotKeys::isDecidedHere(Refusal refusal)
{
    return isOfAllKeys(refusal) || refusal == Refusal::OtherAction || refusal == Refusal::Typing;
}

bool AgentHotKeys::isOfAllKeys(Refusal refusal)
{
    return refusal == Refusal::NoModifiers || refusal == Refusal::DoublePressAlone;
}

/// Whether an action before it has the same key.
bool AgentHotKeys::isAnotherActions(const ActionKey &key) const
{
    const auto pressedKey = [](const ActionKey &one) { return pressedKeyCode(one.hotKey->keycode()); };
    return std::any_of(keys_.cbegin(), keys_.cbegin() + (&key - keys_.constData()),
        [&](const ActionKey &before) { return pressedKey(before) == pressedKey(key); });
}

void AgentHotKeys::release()
{
    areWanted_ = false;
    for (ActionKey &key : keys_) {
        key.hotKey->unregisterAsHotKey();
        key.refusal = Refusal::GivenUp;
    }
    freeModifiers_.clear();
    Q_EMIT changed();
}

void AgentHotKeys::handlePress(const QVariant &hotKey)
{
    const auto found = std::find_if(keys_.cbegin(), keys_.cend(),
        [&hotKey](const ActionKey &key) { return hotKey.value<KTXHotKey *>() == key.hotKey.get(); });
    if (found == keys_.cend())
        return;
    // Copies: who hears of it may change the keys.
    const QString action = found->action, combination = found->hotKey->description();
    Q_EMIT pressed(action, combination, LMCurrentEventTime());
}

void AgentHotKeys::handleLoss()
{
    for (ActionKey &key : keys_) {
        if (!isDecidedHere(key.refusal))
            key.refusal = Refusal::NoHotKeys;
    }
    freeModifiers_.clear();
    Q_EMIT changed();
}

bool AgentHotKeys::isAnyRefused() const
{
    return std::any_of(
        keys_.cbegin(), keys_.cend(), [](const ActionKey &key) { return refusalNow(key) != Refusal::None; });
}

QStringList AgentHotKeys::movementKeysHeldByOthers() const
{
    QStringList held;
    for (const ActionKey &key : keys_.first(KTXMovementKeyCount)) {
        if (refusalNow(key) == Refusal::OtherProgram)
            held.append(key.hotKey->description());
    }
    return held;
}

QList<AgentHotKey> AgentHotKeys::hotKeys() const
{
    QList<AgentHotKey> hotKeys;
    for (const ActionKey &key : keys_) {
        const Refusal refusal = refusalNow(key);
        hotKeys.append({key.action, key.hotKey->keycode(), key.hotKey->description(), text(refusal), word(refusal)});
    }
    return hotKeys;
}

AgentHotKeys::Refusal AgentHotKeys::refusalOf(OSStatus status)
{
    switch (status) {
    case noErr:
        return Refusal::None;
    case eventHotKeyExistsErr:
        return Refusal::OtherProgram;
    case paramErr:
        return Refusal::NoKey;
    default:
        return Refusal::NoHotKeys;
    }
}

/// What is registered may have become impossible with a change of the keyboard.
AgentHotKeys::Refusal AgentHotKeys::refusalNow(const ActionKey &key)
{
    const auto reference = key.hotKey->hotKeyRef();
    return reference ? refusalOf(LMHotKeyStatus(static_cast<EventHotKeyRef>(reference->pointerValue))) : key.refusal;
}

QString AgentHotKeys::text(Refusal refusal)
{
    switch (refusal) {
    case Refusal::None:
        return {};
    case Refusal::NoModifiers:
        return QStringLiteral("no modifiers are chosen");
    case Refusal::DoublePressAlone:
        return QStringLiteral("only pressing the modifiers twice begins a selection");
    case Refusal::OtherAction:
        return QStringLiteral("another action has the same key");
    case Refusal::Typing:
        return QStringLiteral("Shift alone would take the characters you type");
    case Refusal::OtherProgram:
        return QStringLiteral("another program holds it");
    case Refusal::NoKey:
        return QStringLiteral("the keyboard has no such key");
    case Refusal::NoHotKeys:
        return QStringLiteral("there are no hot keys in this session");
    case Refusal::GivenUp:
        return QStringLiteral("it has been given up");
    }
    return {};
}

QString AgentHotKeys::word(Refusal refusal)
{
    static const QHash<Refusal, QString> words{{Refusal::NoModifiers, KTXCauseNoModifiers},
        {Refusal::DoublePressAlone, KTXCauseDoublePressAlone}, {Refusal::OtherAction, KTXCauseOtherAction},
        {Refusal::Typing, KTXCauseTyping}, {Refusal::OtherProgram, KTXCauseOtherProgram},
        {Refusal::NoKey, KTXCauseNoKey}, {Refusal::NoHotKeys, KTXCauseNoHotKeys}, {Refusal::GivenUp, KTXCauseGivenUp}};
    return words.value(refusal);
}
