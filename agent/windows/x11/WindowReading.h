#pragma once

#include "agent/windows/WindowChoice.h"
#include "agent/windows/WindowFailure.h"
#include "agent/windows/WindowWorld.h"
#include "agent/windows/x11/WindowServer.h"

#include <QString>
#include <optional>

/// Reads all windows: one round trip for the root, one for all windows together, and further ones only for windows
/// whose manager does not tell their frames, or does not tell the stack. No value, with the reason, where there is no
/// manager that tells its windows, or the server has gone.
std::optional<WindowWorld> readWindows(const WindowServer &server, const WindowChoice &choice, WindowFailure *failure);
