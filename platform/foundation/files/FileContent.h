#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <optional>

/// What a file holds, as much as it held when it was opened: one that somebody writes to meanwhile does not hold us up.
/// Nothing where it cannot be read, is no file (a pipe, a folder) or is larger than `most` bytes.
LM_FOUNDATION std::optional<QByteArray> contentOfFile(const QByteArray &path, qint64 most);
