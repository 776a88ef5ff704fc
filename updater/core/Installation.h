#pragma once

#include "updater/core/UpdatePlaces.h"
#include "updater/core/UpdateProblem.h"
#include "updater/core/WaitingUpdateRecord.h"

#include <chrono>

/// The installer's exit status where it has not installed what waits is this and the problem's kind.
inline constexpr int firstInstallationFailure = 16;

/// What came of installing a waiting update.
struct Installation
{
    QString version; ///< that stands at the bundle's path now; empty where nothing was waiting
    ExpectedUpdate update; ///< that was waiting
    UpdateProblem problem; ///< then the old bundle stands untouched
};

/// Installs the update that waits for a bundle, if there is one: verifies its archive again, unpacks that afresh, and
/// has the two bundles change places in one step. Whenever the process dies, the bundle is the old or the new one,
/// whole.
///
/// The old bundle stays aside for the processes that run its code. An update that turns out to be no genuine or no
/// newer one, or whose archive is gone, is removed; one that the disk has no room for waits on. Takes as long as
/// unpacking does; blocks.
Installation installWaitingUpdate(const QString &bundlePath);

/// Verifies what waits as its installation will, but for unpacking it, and removes it where it turns out to be none.
/// Called before the settings are asked to end for it. Blocks for as long as reading the archive takes.
UpdateProblem verifyWaitingUpdate(const QString &bundlePath);

/// Waits until no other process updates the bundle any more; false where one still does after `longest`.
bool waitForOtherUpdates(const QString &bundlePath, std::chrono::milliseconds longest);

/// Removes the old bundles of which no process runs code any more, and updates that were not completed. Does nothing
/// while another process updates the bundle.
void removeWhatIsOver(const QString &bundlePath);
