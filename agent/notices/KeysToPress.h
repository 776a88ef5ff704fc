#pragma once

#include "agent/keys/AgentHotKeys.h"

/// What to press now to select a window, with the keys of the four directions that are set and work: "Hold ⌃⌥ and press
/// ← → ↑ ↓", in the user's language. Empty where none of them works.
QString keysToPress(const QVariantMap &settings, const QList<AgentHotKey> &hotKeys);
