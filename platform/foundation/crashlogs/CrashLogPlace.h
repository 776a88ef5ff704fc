#pragma once

#include "platform/foundation/Export.h"

#include <QString>

/// Where the crash logs of a program lie, and in which form.
struct CrashLogPlace
{
    enum class Form {
        OneFile, ///< <program>.crash.log, to which each crash adds a record
        FileForEach ///< <program>_<anything>.crash, one for each crash
    };
    QString folder; ///< below the home folder, with a slash at its end
    Form form;

    bool operator==(const CrashLogPlace &) const = default;
};

/// The place by the system's version; what writes logs and what looks for them go by it. Major versions up to 9 have
/// one file, and above that the minor version alone decides.
LM_FOUNDATION CrashLogPlace crashLogPlace(quint32 major, quint32 minor);
