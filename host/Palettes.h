#pragma once

#include "host/ColorScheme.h"

#include <QPalette>

/// The colours of a scheme where no desktop theme brings its own. Every text stands out from its ground by 4.5:1 at
/// least, disabled text excepted.
QPalette paletteFor(ColorScheme scheme);
