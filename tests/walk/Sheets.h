#pragma once

#include <QString>
#include <QStringList>

/// Opens the settings in a colour scheme, does all that does not go, and leaves a screenshot of each alert. The
/// arguments are the settings' own.
void showEverySheet(const QString &folder, const QStringList &arguments, const QString &theme);
