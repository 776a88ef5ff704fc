#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <memory>

/// Key codes by row: one object, which several names may denote.
using KeyCodeTable = std::shared_ptr<QList<VirtualKeyCode>>;
