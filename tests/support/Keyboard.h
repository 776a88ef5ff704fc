#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QString>
#include <QStringList>
#include <optional>

// The X server's keyboard, as a user sets it up.

/// Gives the keyboard these layouts, as `setxkbmap` takes them ("us,de", variants "intl,").
void setKeyboardLayout(const QString &layouts, const QString &variants = {}, const QStringList &options = {});
/// Switches to a group of the layouts, counted from 0, and waits until the server has done so.
void lockKeyboardGroup(int group);

/// Switches between the first two groups, so many times, and waits until the server has done so.
void switchKeyboardGroups(int times);

/// The keycode of the key that has an XKB name or an alias; nothing where none has. As the server tells it.
std::optional<int> keycodeNamed(const QString &xkbName);

/// What the current layout gives for a virtual key code, by the platform's own calls.
QString translatedKey(VirtualKeyCode keyCode);
