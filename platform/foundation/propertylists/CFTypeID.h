#pragma once

#include "platform/foundation/Export.h"

#include <QVariant>

/// The kinds of property-list values, where a caller must know.
enum class CFTypeID { None, Boolean, Number, String, Data, Date, Array, Dictionary };
LM_FOUNDATION CFTypeID CFGetTypeID(const QVariant &value);
LM_FOUNDATION CFTypeID CFBooleanGetTypeID();
/// True only for the boolean true; never looks at the type first.
LM_FOUNDATION bool CFBooleanGetValue(const QVariant &value);
