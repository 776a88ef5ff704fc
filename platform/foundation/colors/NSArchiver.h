#pragma once

#include "platform/foundation/colors/NSColor.h"

#include <QByteArray>

/// Writes the sequential archive of one colour.
class LM_FOUNDATION NSArchiver
{
public:
    /// The bytes: little-endian for colours made here, as they were for a colour read and not changed, and always the
    /// same 126 for the system colour selectedTextBackgroundColor. Empty for a null colour and for one whose fallbacks
    /// nest deeper than 16.
    static QByteArray archivedDataWithRootObject(const NSColorRef &color);
};

/// Reads the sequential archive of one colour.
class LM_FOUNDATION NSUnarchiver
{
public:
    /// The colour, or null for anything damaged, unknown or not ending where it should. The system colour comes back as
    /// its one object. Never throws.
    static NSColorRef unarchiveObjectWithData(const QByteArray &data);
};
