#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <memory>

// The keyboard layout in use: that of the X server's keyboard with its current group; without an X server, the default
// names' (us). A layout switched while the process runs counts at the next reading.

class KeyboardLayoutData;
using TISInputSourceRef = std::shared_ptr<const KeyboardLayoutData>;
using UCKeyboardLayoutRef = std::shared_ptr<const KeyboardLayoutData>;

enum class TISProperty { UnicodeKeyLayoutData };
inline constexpr TISProperty kTISPropertyUnicodeKeyLayoutData = TISProperty::UnicodeKeyLayoutData;

enum class UCKeyAction : quint16 { Down = 0 };
inline constexpr UCKeyAction kUCKeyActionDown = UCKeyAction::Down;

/// The current layout, or null when no keymap can be had at all.
LM_FOUNDATION TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource();
/// The layout data of an input source; stays valid after the source is let go. Null for a null source.
LM_FOUNDATION UCKeyboardLayoutRef TISGetInputSourceProperty(const TISInputSourceRef &source, TISProperty property);
/// The keyboard's physical type. This desktop tells none apart; always the same non-zero number (ANSI).
LM_FOUNDATION quint8 LMGetKbdType();

/// The virtual key code of a key by its keycode on the layout's keyboard, which is the toolkit's scan code. The key's
/// name there decides; for a null layout the keycode does. Nothing for a key that has no code.
LM_FOUNDATION std::optional<VirtualKeyCode> LMVirtualKeyCodeOfKeycode(
    const UCKeyboardLayoutRef &layout, quint32 keycode);

/// The characters a key gives in a layout: of a virtual key code, without modifiers whatever is held now.
///
/// Writes at most `maxStringLength` UTF-16 units to `unicodeString` and their count to `*actualStringLength`; a dead
/// key, a modifier, an unknown code and a character that does not fit whole give 0. Returns 0, or -50 for a null layout
/// or null pointers.
LM_FOUNDATION qint32 UCKeyTranslate(const UCKeyboardLayoutRef &layout, VirtualKeyCode virtualKeyCode,
    UCKeyAction keyAction, quint32 modifierKeyState, quint32 keyboardType, quint32 keyTranslateOptions,
    quint32 *deadKeyState, quint64 maxStringLength, quint64 *actualStringLength, char16_t *unicodeString);
