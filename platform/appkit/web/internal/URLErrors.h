#pragma once

#include "platform/foundation/NSError.h"

/// What a user is told of an NSURLErrorCode.
NSError urlError(int code);
