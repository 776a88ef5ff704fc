#pragma once

#include <QStringList>

/// The files that a process has in its memory, each once.
QStringList filesInMemoryOf(qint64 process);
