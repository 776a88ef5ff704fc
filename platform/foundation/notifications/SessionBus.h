#pragma once

#include "platform/foundation/Export.h"

/// Waits until the session bus has taken everything sent so far, 5 s at most; false where there is no bus, or it does
/// not answer.
LM_FOUNDATION bool waitForSessionBus();
