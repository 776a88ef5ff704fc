#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <QVariant>

/// The text form of a property-list value, as "%@" shows it.
///
/// No value is "(null)"; a text is itself; booleans are 1 and 0; data is <hex> in groups of four bytes; a date is
/// "2001-02-03 04:05:06 +0000"; lists and dictionaries take several lines, four blanks a level, keys sorted, texts in
/// quotation marks unless plain words.
LM_FOUNDATION QString description(const QVariant &value);

/// The leading integer of a text: blanks, a sign, digits, stop. Saturates at the limits of 32 bits; 0 without digits
/// ("12b" is 12).
LM_FOUNDATION int intValue(const QString &text);

/// The integer value of a text, number or boolean; 0 for anything else and for no value.
LM_FOUNDATION int intValue(const QVariant &value);
