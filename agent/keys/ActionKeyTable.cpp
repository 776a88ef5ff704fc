#include "agent/keys/ActionKeyTable.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"

#include <QSet>
#include <algorithm>
#include <array>

namespace {

constexpr VirtualKeyCode escape = 53;
constexpr std::array<quint32, 9> digitKeys{18, 19, 20, 21, 23, 22, 26, 28, 25};

} // namespace

VirtualKeyCode actionKeyCode(const QVariantMap &settings, const QString &action)
{
    return keyCodeOf(settings.value(action)).value_or(0).low16Bits();
}

bool isMovementAction(const QString &action)
{
    const auto &all = KTXActionKeys();
    return std::any_of(all.cbegin(), all.cbegin() + KTXMovementKeyCount,
        [&action](const KTXActionKey &one) { return one.preferenceName == action; });
}

bool isSettingOfKeys(const QString &setting)
{
    static const QSet<QString> others{
        KTXModifierMask, KTXActivateDoubleClick, KTXAutoRepeat, KTXInitialDelay, KTXRepeatRate};
    const auto &actions = KTXActionKeys();
    return others.contains(setting)
        || std::any_of(actions.cbegin(), actions.cend(),
            [&setting](const KTXActionKey &action) { return action.preferenceName == setting; });
}

void ActionKeyTable::follow(const QVariantMap &settings)
{
    modifiers_ = settings.value(KTXModifierMask).toUInt();
    actions_.clear();
    for (const KTXActionKey &action : KTXActionKeys()) {
        const quint32 key = pressedKeyCode(actionKeyCode(settings, action.preferenceName)).number();
        // Of two actions with the same key the first has it.
        if (!actions_.contains(key))
            actions_.insert(key, action.preferenceName);
    }
}

QString ActionKeyTable::actionOf(const KeyEvent &key) const
{
    if (key.keyCode == escape && key.held == 0)
        return KTXCancelPref;
    return isPressedAsOurs(key) ? actions_.value(pressedKeyCode(*key.keyCode).number()) : QString();
}

std::optional<int> ActionKeyTable::digitOf(const KeyEvent &key) const
{
    if (!isPressedAsOurs(key) || isActionsKey(*key.keyCode))
        return std::nullopt;
    const auto found = std::find(digitKeys.cbegin(), digitKeys.cend(), key.keyCode->number());
    return found == digitKeys.cend() ? std::nullopt : std::optional(int(found - digitKeys.cbegin()) + 1);
}

std::optional<VirtualKeyCode> ActionKeyTable::keyOf(const QString &action) const
{
    for (auto entry = actions_.cbegin(); entry != actions_.cend(); ++entry) {
        if (entry.value() == action)
            return VirtualKeyCode(entry.key());
    }
    return std::nullopt;
}

bool ActionKeyTable::isActionsKey(VirtualKeyCode keyCode) const
{
    return actions_.contains(pressedKeyCode(keyCode).number());
}

VirtualKeyCode ActionKeyTable::keyOfDigit(int digit)
{
    return digitKeys.at(size_t(digit - 1));
}
