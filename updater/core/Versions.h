#pragma once

#include <QString>

// Versions as bundles carry them in CFBundleVersion: numbers with dots between them, and letters with a number after
// them for what comes before the version without ("12", "1.2.10", "12b3").

/// Whether a text is such a version. Sixty-four characters at most.
bool isBundleVersion(const QString &text);

/// Below 0 where `left` is the older one, 0 where the two are the same version ("1.0" and "1"), above 0 otherwise.
/// Numbers count by their value, however long. A text that is no version is older than any version.
int compareVersions(const QString &left, const QString &right);

inline bool isNewer(const QString &version, const QString &other)
{
    return compareVersions(version, other) > 0;
}
