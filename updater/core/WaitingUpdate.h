#pragma once

#include "updater/core/UpdatePlaces.h"
#include "updater/core/UpdateProblem.h"
#include "updater/core/WaitingUpdateRecord.h"

/// Makes the folder for an update, in place of one that waits; the archive goes into it. The caller holds the folder's
/// lock in this and the next.
UpdateProblem beginWaitingUpdate(const UpdatePlaces &places);

/// Checks the archive's signature, unpacks it, checks the bundle that came out, and writes the record: from then on the
/// update waits to be installed. Whatever is wrong, nothing of it stays. Any thread.
UpdateProblem completeWaitingUpdate(const UpdatePlaces &places, const ExpectedUpdate &expected);

/// Removes what waits, also something incomplete.
void removeWaitingUpdate(const UpdatePlaces &places);

/// Verifies the archive that lies at its place against what is installed now, and unpacks it into an empty folder.
/// `bundle` becomes the path of the bundle in it, which has been checked. The archive is read once: one that is
/// exchanged meanwhile makes no difference.
UpdateProblem unpackVerified(
    const UpdatePlaces &places, const ExpectedUpdate &expected, const QString &into, QString *bundle);

/// Verifies only that the archive at its place is the one that was signed, against what is installed now.
UpdateProblem problemOfArchive(const UpdatePlaces &places, const ExpectedUpdate &expected);
