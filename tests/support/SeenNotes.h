#pragma once

#include "platform/foundation/preferences/CFPreferences.h"
#include "updater/core/UpdateRecord.h"

/// From now on the notes of no build come up by themselves, and take the focus, when a pane of whatever version is
/// shown.
inline void letNotesBeSeen()
{
    CFPreferencesSetAppValue(QStringLiteral("BuildOfNotes"), qlonglong(1000000), updaterDomain);
    CFPreferencesAppSynchronize(updaterDomain);
}
