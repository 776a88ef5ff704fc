#pragma once

#include "platform/foundation/Export.h"

#include <QVariant>

/// A property-list value as the bus can carry it; no value for what it cannot carry. 4-byte reals become 8-byte ones;
/// what is nested too deep is left out.
LM_FOUNDATION QVariant busValue(const QVariant &value);
LM_FOUNDATION QVariantMap busMap(const QVariantMap &map);

/// A value from the bus as a property-list value: every integer is a 64-bit one, variants are unpacked, arrays and
/// dictionaries converted throughout. No value for types that no property list holds.
LM_FOUNDATION QVariant plainValue(const QVariant &value);
