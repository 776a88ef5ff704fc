#pragma once

#include <QString>

inline constexpr unsigned superuser = 0;

/// The user whose rights this process has.
unsigned effectiveUser();

/// Whether entries of a folder may be added, removed and renamed, by the rights of now.
bool mayWriteFolder(const QString &folder);
