#pragma once

#include "updater/Export.h"

class NSBundle;

/// Has the update that waits for a bundle installed once this process has ended, however it ends: starts the program
/// `installer` of the bundle, which waits for that. It also removes what earlier updates have left. False, with one
/// logged line, where it cannot be started.
LM_UPDATER bool installWhenThisEnds(const NSBundle *bundle);
