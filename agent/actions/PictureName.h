#pragma once

#include <QDateTime>
#include <QString>

/// What the picture of a program's window is called, without its extension: "Terminal 2026-11-22 at 10.31.05". Safe as
/// a file's name, whatever the program calls itself.
QString pictureName(const QString &program, const QDateTime &time);

/// Where pictures of windows go: in the user's folder for pictures.
QString pictureFolder();
