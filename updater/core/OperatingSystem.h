#pragma once

#include <QString>

/// Whether something that a feed tells of is for this system, by the name that it gives; empty: for any.
inline bool isForThisSystem(const QString &operatingSystem)
{
    return operatingSystem.isEmpty() || operatingSystem.compare(QStringLiteral("linux"), Qt::CaseInsensitive) == 0;
}
