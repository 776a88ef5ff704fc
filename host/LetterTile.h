#pragma once

#include <QIcon>
#include <QString>

/// A rounded tile with the first letter of a name, for what has no icon of its own.
QIcon letterTile(const QString &name);
