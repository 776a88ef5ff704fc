#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QString>
#include <QStringList>

// The X server's keyboard, as a user sets it up.

/// Gives the keyboard these layouts, as `setxkbmap` takes them ("us,de", variants "intl,").
void setKeyboardLayout(const QString &layouts, const QString &variants = {}, const QStringList &options = {});
/// Switches to a group of the layouts, counted from 0, and waits until the server has done so.
void lockKeyboardGroup(int group);

/// What the current layout gives for a virtual key code, by the platform's own calls.
QString translatedKey(VirtualKeyCode keyCode);
