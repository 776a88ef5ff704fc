#pragma once

#include <QString>
#include <cerrno>
#include <cstring>

/// "rename: No space left on device", after errno.
inline QString systemProblem(const char *call)
{
    return QStringLiteral("%1: %2").arg(QString::fromLatin1(call), QString::fromLocal8Bit(std::strerror(errno)));
}
