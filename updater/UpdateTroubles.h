#pragma once

#include "updater/Export.h"
#include "updater/core/UpdateProblem.h"

class NSBundle;

// What the page about updates says where there are none, in the user's language.

/// That an update which waited was not installed, why, and what there is to do. `version` is as people call it.
LM_UPDATER QString troubleWithInstallation(const NSBundle *bundle, const QString &version, UpdateProblem::Kind kind);

/// Why nothing is looked for by itself, in place of how often it is.
LM_UPDATER QString troubleWithChecks(const NSBundle *bundle, UpdateProblem::Kind kind);
