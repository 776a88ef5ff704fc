#pragma once

#include <QIcon>

/// The icon in a file, in the sizes that windows and lists show; larger ones, which take long to decode and to hand to
/// the window manager, are left out where the file holds others. Without a picture where the file cannot be read.
QIcon iconFromFile(const QString &path);
