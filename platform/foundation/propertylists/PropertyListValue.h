#pragma once

#include "platform/foundation/Export.h"

#include <QVariant>

enum class IntegerKind { None, Signed, Unsigned };

/// Whether a value is of an integer type, of whatever width.
LM_FOUNDATION IntegerKind integerKind(const QVariant &value);

/// The value with each part in the one type that property lists are held in: any integer type becomes qlonglong
/// (qulonglong beyond its range), a list of texts a QVariantList, a date its UTC. No value where some part is no
/// property-list value, or where a bound of reading would be exceeded.
LM_FOUNDATION QVariant propertyListValue(const QVariant &value);
