#pragma once

#include "updater/core/UpdateProblem.h"

/// What a problem means to the user, and what there is to do; in English.
struct UpdateFailure
{
    const char *heading;
    const char *text;
};

UpdateFailure updateFailure(UpdateProblem::Kind kind);
