#pragma once

#include <QString>

/// Shows a file in the user's file manager; where that cannot be asked, its folder is opened. Returns at once.
void showFile(const QString &path);
