#pragma once

#include "platform/appkit/interface/InterfaceOwner.h"
#include "updater/Export.h"

/// The classes that an interface file may use for what the user sees of updates within a window of its own.
LM_UPDATER QList<InterfaceClass> updaterInterfaceClasses();
