#pragma once

#include "platform/foundation/Export.h"

#include <QVariant>
#include <optional>

/// The truth of a property-list value as it comes: a boolean, a number that is not 0, or a text that begins with a
/// digit from 1 to 9 or a letter of Y and T in either case (after blanks, a sign and zeros). False for anything else
/// and for no value.
LM_FOUNDATION bool boolValue(const QVariant &value);

/// The 32-bit float of a number or boolean, or the leading number of a text. 0 for anything else and for no value.
LM_FOUNDATION float floatValue(const QVariant &value);

/// The integer that a number stands for; a real counts by its whole part. Nothing for a number beyond 32 bits, for
/// anything else and for no value.
LM_FOUNDATION std::optional<qint32> integerWithin32Bits(const QVariant &value);
