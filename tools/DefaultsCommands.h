#pragma once

#include "DefaultsArguments.h"
#include "platform/foundation/system/CommandFailure.h"

/// Does what was asked for. Throws CommandFailure.
void perform(const DefaultsRequest &request);
