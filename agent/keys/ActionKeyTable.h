#pragma once

#include "agent/keys/Keyboard.h"

#include <QHash>
#include <QString>
#include <QVariantMap>

/// The key that an action has in these settings.
VirtualKeyCode actionKeyCode(const QVariantMap &settings, const QString &action);
bool isMovementAction(const QString &action);
/// Whether the keys go by a setting: which they are, and what is done about them.
bool isSettingOfKeys(const QString &setting);

/// Which key is which action's, or which digit's.
class ActionKeyTable
{
public:
    void follow(const QVariantMap &settings);

    quint32 modifiers() const { return modifiers_; }
    /// Of a key that is pressed with the modifiers, a part of them or none; empty for one that is no action's. Escape
    /// without any always cancels.
    QString actionOf(const KeyEvent &key) const;
    /// 1 to 9, by the place of the key, where that is no action's; nothing for others.
    std::optional<int> digitOf(const KeyEvent &key) const;
    /// The key of an action, whatever its state; nothing for what is none.
    std::optional<VirtualKeyCode> keyOf(const QString &action) const;
    bool isActionsKey(VirtualKeyCode keyCode) const;

    static VirtualKeyCode keyOfDigit(int digit);

private:
    bool isPressedAsOurs(const KeyEvent &key) const { return key.keyCode && !(key.held & ~modifiers_); }

    quint32 modifiers_ = 0;
    QHash<quint32, QString> actions_; ///< by the numbers of the keys' codes
};
