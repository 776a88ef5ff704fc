#pragma once

#include <QString>

/// The program of the agent that stands at a bundle path now, when its version is greater than the loaded one; empty
/// when it is not, or when what stands there is no agent that could be started (which is logged).
QString newerAgentProgram(const QString &bundlePath, int loadedVersion);
