#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <utility>

/// Logs the exception that is being handled, with the place that caught it. Called inside a catch block only.
LM_FOUNDATION void logCaughtException(const char *place);

/// Runs `operation` where nothing may be thrown any further (action dispatch, notification delivery, a host call ...).
///
/// What it throws is logged with `place`, and the run loop carries on. Returns whether the operation came to its end.
template <typename Operation>
bool runAtBoundary(const char *place, Operation &&operation)
{
    try {
        std::forward<Operation>(operation)();
        return true;
    } catch (...) {
        logCaughtException(place);
        return false;
    }
}
