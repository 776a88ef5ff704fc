#pragma once

#include <QString>

/// Whether a file is an SQLite database without damage.
bool isWholeDatabase(const QString &path);
