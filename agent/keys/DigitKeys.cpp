#include "agent/keys/DigitKeys.h"

#include "KTXHotKey.h"
#include "KTXModifiers.h"
#include "agent/keys/ActionKeyTable.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

DigitKeys::DigitKeys()
{
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        this, [this](const NSNotification &notification) { handlePress(notification.object.value<KTXHotKey *>()); },
        KTXHotKeyPressed);
}

DigitKeys::~DigitKeys()
{
    take({}, {});
}

void DigitKeys::take(const QSet<int> &digits, const ActionKeyTable &keys)
{
    for (auto entry = hotKeys_.cbegin(); entry != hotKeys_.cend(); ++entry) {
        if (!digits.contains(entry.key()))
            entry.value()->unregisterAsHotKey();
    }
    const bool wouldType = keys.modifiers() == 0 || keys.modifiers() == KTXShiftModifier;
    for (const int digit : wouldType ? QSet<int>() : digits) {
        const VirtualKeyCode keyCode = ActionKeyTable::keyOfDigit(digit);
        if (keys.isActionsKey(keyCode))
            continue;
        std::shared_ptr<KTXHotKey> &hotKey = hotKeys_[digit];
        // Never removed again: the numbers of hot keys are their places.
        if (!hotKey)
            hotKey = KTXHotKey::createWithKeyCodeAndModifiers(keyCode, 0);
        if (hotKey->isHotKeyRegistered() && hotKey->modifiers() == keys.modifiers())
            continue;
        hotKey->setModifiers(keys.modifiers());
        hotKey->registerAsHotKey();
    }
}

QSet<int> DigitKeys::taken() const
{
    QSet<int> digits;
    for (auto entry = hotKeys_.cbegin(); entry != hotKeys_.cend(); ++entry) {
        if (entry.value()->isHotKeyRegistered())
            digits.insert(entry.key());
    }
    return digits;
}

void DigitKeys::handlePress(const KTXHotKey *hotKey)
{
    for (auto entry = hotKeys_.cbegin(); entry != hotKeys_.cend(); ++entry) {
        if (entry.value().get() != hotKey)
            continue;
        Q_EMIT pressed(entry.key(), LMCurrentEventTime());
        return;
    }
}
