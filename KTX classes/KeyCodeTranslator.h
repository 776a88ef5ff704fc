#pragma once

#include <QString>
#include <QtGlobal>

// How keys and modifiers are named to people.

/// The name of a virtual key code in the keyboard layout of this moment; empty for a dead key.
///
/// Arrows give their glyphs, named keys their names in the language of the main bundle, other keys their unshifted
/// character in upper case. The flags play no part.
QString stringForKeyCodeWithModifierFlags(quint16 keyCode, quint64 modifierFlags);

/// The glyphs of a modifier mask, always in the order shift, control, option, command.
QString modifierGlyphs(quint32 mask);

/// The event flags of a modifier mask; other bits are dropped.
quint64 hKeyModsToCGEventParams(quint32 mask);

/// The 32 bits of a number as "1" and "0", the highest first.
QString binaryString(quint32 bits);
/// Writes the same to standard output, without a line end.
void printBits(quint32 bits);

/// "Yes" or "No".
QString BOOLString(bool value);
