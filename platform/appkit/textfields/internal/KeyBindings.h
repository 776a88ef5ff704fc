#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/NSEvent.h"

#include <QString>
#include <optional>

class QKeyEvent;

// What a key press means to a text field: something typed, a command, or nothing of its own. The key alone decides,
// not its text: the layout, Caps Lock, Num Lock and held modifiers change nothing.

/// A key press by its virtual key code; nothing for keys without one.
LM_APPKIT std::optional<NSEvent> keyDownEvent(const QKeyEvent &event);

/// Whether a key types: letters, digits, signs, space, and the keypad without its Enter.
LM_APPKIT bool isTypingKey(VirtualKeyCode keyCode);

/// Whether a text field takes a key, whatever is held with it: what types, and the commands of Return, Enter and the
/// arrows.
LM_APPKIT bool isTakenByFields(VirtualKeyCode keyCode);

/// Whether a key that stays down is one press, of which the repeats are nothing: what types, Enter and the arrows.
/// Others, Tab and Return among them, repeat.
LM_APPKIT bool countsOnceWhileHeld(VirtualKeyCode keyCode);

/// Whether a key does nothing in a field that takes keys: functions, deleting, paging and the like. Modifiers, locks
/// and what moves the focus are of use.
LM_APPKIT bool isOfNoUse(VirtualKeyCode keyCode);

/// The command that a key press becomes ("insertNewline:"); empty for none.
LM_APPKIT QString commandSelector(const NSEvent &event);
