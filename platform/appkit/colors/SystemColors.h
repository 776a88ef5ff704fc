#pragma once

#include "platform/appkit/Export.h"
#include "platform/foundation/colors/NSColor.h"

#include <QColor>

/// How a colour looks now: catalogue colours that the system knows follow the palette, others show their fallback.
LM_APPKIT QColor liveColor(const NSColorRef &color);
/// The archivable colour for one picked on screen: calibrated RGB.
LM_APPKIT NSColorRef calibratedColor(const QColor &color);
