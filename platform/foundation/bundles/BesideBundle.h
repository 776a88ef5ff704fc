#pragma once

#include "platform/foundation/Export.h"

#include <QString>

// What belongs to a bundle without being in it stands beside it, hidden, under the bundle's name: an update that waits,
// a bundle that has been replaced and still runs. `bundlePath` is the bundle's real path, links followed.

/// Where such a thing stands: ".<name of the bundle>.<what>".
LM_FOUNDATION QString pathBesideBundle(const QString &bundlePath, const QString &what);

/// Whether any stands there. The program `installer` of the bundle's resources, run with the bundle's path, sees to it.
LM_FOUNDATION bool isAnythingBesideBundle(const QString &bundlePath);
