#pragma once

#include "platform/appkit/Export.h"

/// Sounds the system's alert sound: rings the bell of the display, which the desktop hears and makes a sound of (or a
/// flash, as its user wishes). Main thread only; returns at once.
LM_APPKIT void NSBeep();
