#pragma once

#include <QStringList>

/// Runs another program in this process, which keeps its number. Returns only when that failed, with the reason.
QString replaceProgram(const QString &program, const QStringList &arguments);
