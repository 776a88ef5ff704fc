#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <optional>

struct SystemVersion
{
    quint32 major = 0;
    quint32 minor = 0;
    quint32 bugFix = 0;

    bool operator==(const SystemVersion &) const = default;
};

/// The VERSION_ID of a file of the form of /etc/os-release; parts that it lacks are 0. None where there is no such line
/// or it does not begin with a number.
LM_FOUNDATION std::optional<SystemVersion> systemVersionOf(const QByteArray &osRelease);

/// In one number: two decimal digits of the major version in bits 8 to 15, the minor version in bits 4 to 7, the bug
/// fix in bits 0 to 3. What has no room counts as the highest that has.
LM_FOUNDATION quint32 packedSystemVersion(const SystemVersion &version);
