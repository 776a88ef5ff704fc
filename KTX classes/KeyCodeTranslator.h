#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QString>
#include <array>

/// What a key is called whose translation is a control or function character.
struct KeyName
{
    const char16_t *name;
    quint32 glyph; ///< shown instead of the name; 0 for none
    quint16 character; ///< the UTF-16 unit that the keyboard layout gives for the key
};

/// The names, in the order in which they are searched.
extern const std::array<KeyName, 24> keyNameTable;

/// Names keys by the user's keyboard layout.
class KeyCodeTranslator
{
public:
    /// The short text for a virtual key code (its low 16 bits): "Z" or "Y" by the layout in use, a name in the user's
    /// language, an arrow, or nothing for a dead key. The modifier flags are ignored: a key is called the same whatever
    /// is held with it.
    static QString stringForKeyCodeWithModifierFlags(VirtualKeyCode keyCode, quint64 modifierFlags);

    /// The text for what a key translates to (zero or one UTF-16 unit). Names are looked up in the main bundle.
    static QString nameOfTranslation(const QString &units);
};

/// The glyphs of a modifier mask, always in the order shift, control, option, command; other bits are ignored.
QString modifierGlyphs(quint32 modifierMask);

/// The event flags of the same modifiers; other bits are dropped.
quint64 hKeyModsToCGEventParams(quint32 modifierMask);

/// 32 characters "1" and "0", most significant bit first.
QString binaryString(quint32 value);
/// Writes the same to standard output, without a line end.
void printBits(quint32 value);

/// "Yes" or "No".
QString BOOLString(bool value);
