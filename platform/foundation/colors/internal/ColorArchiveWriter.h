#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/colors/NSColor.h"

#include <QByteArray>

/// The sequential archive of a colour, composed from what it holds, in its byte order. Empty for a chain of fallbacks
/// that no reader would follow.
LM_FOUNDATION QByteArray writeColorArchive(const NSColor &color);
