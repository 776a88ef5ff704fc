#pragma once

#include "platform/foundation/OSStatus.h"

/// Registers the pane's help book with the help system.
///
/// Called each time the pane's view is loaded and before each request for help whose book is not registered. Returns 0,
/// or fnfErr when the pane's bundle is not to be found; no caller looks at it.
OSStatus RegisterMyHelpBook();
