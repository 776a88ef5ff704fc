#pragma once

#include "updater/core/UpdateProblem.h"

class NSBundle;

/// Why a bundle is not checked by schedule; none where it can be.
UpdateProblem problemOfChecking(const NSBundle *bundle);
