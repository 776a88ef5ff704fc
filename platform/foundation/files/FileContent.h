#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <optional>

/// What a file holds, of a larger one the last `most` bytes, as it was when it was opened: one that somebody writes to
/// meanwhile does not hold us up. Nothing where it cannot be read or is no file (a pipe, a folder).
LM_FOUNDATION std::optional<QByteArray> lastBytesOfFile(const QByteArray &path, qint64 most);
