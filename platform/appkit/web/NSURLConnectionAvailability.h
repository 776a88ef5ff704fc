#pragma once

#include "platform/appkit/Export.h"

/// Whether what sends requests (NSURLConnection.h) is installed. It is not loaded for that.
LM_APPKIT bool webRequestsCanBeSent();
