#pragma once

#include "updater/core/UpdateProblem.h"

/// Whether this user may update a bundle at all. As root never: an update is checked by the settings of the user whose
/// bundle it is, and what root installs belongs to the package manager.
UpdateProblem problemOfUpdating(const QString &bundlePath);
/// The same for a process with this effective user, for tests.
UpdateProblem problemOfUpdating(const QString &bundlePath, unsigned user);
