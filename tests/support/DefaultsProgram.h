#pragma once

#include "ProgramResult.h"

/// Runs lumaroo-defaults of this build to its end.
inline ProgramResult runDefaults(const QStringList &arguments, const QByteArray &input = {})
{
    return runProgram(
        qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/bin/lumaroo-defaults"), arguments, input);
}
