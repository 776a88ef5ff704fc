#pragma once

#include "platform/foundation/Export.h"

#include <QList>
#include <QString>
#include <QStringList>

// What keeps settings from being stored, and what became of files that could not be used, for whoever tells the user.
// Of the domains that this process has read or written. Main thread only.

/// Why a domain could not be flushed when that was last tried.
struct PreferencesTrouble
{
    enum class Cause {
        FullDisk, ///< no room, or no more of it for this user
        ReadOnlyDisk,
        NoPermission,
        Locked, ///< another process has not let the file go
        TooLarge,
        Other,
    };
    enum class Extent {
        NotStored, ///< the file holds its old content
        Unreadable, ///< nor can be told what it holds: reads give what this process has set, and nothing else
        NotSecured, ///< the file holds the new content, which may not survive a power failure
    };
    Cause cause = Cause::Other;
    Extent extent = Extent::NotStored;
    QString path; ///< of the domain's file
    QString detail; ///< as the system says it: "write: No space left on device"

    bool operator==(const PreferencesTrouble &) const = default;
};

/// Posted on the process's own centre when a domain's trouble begins, becomes another one, or is over. The object is
/// the domain's name, as a text.
inline const QString PreferencesTroubleDidChangeNotification =
    QStringLiteral("PreferencesTroubleDidChangeNotification");

/// Posted on the process's own centre when this process has moved a domain's file aside, since it did not parse. The
/// object is the domain's name, as a text.
inline const QString PreferencesFileWasKeptAsideNotification =
    QStringLiteral("PreferencesFileWasKeptAsideNotification");

/// Those that last, by their domains' files. Empty when everything that was flushed is stored.
LM_FOUNDATION QList<PreferencesTrouble> preferencesTroubles();
/// The same of one domain.
LM_FOUNDATION bool hasPreferencesTrouble(const QString &applicationID);

/// Flushes the domains that are in trouble. Called when the user has put things in order; true when none is left.
LM_FOUNDATION bool retryPreferences();

/// The files that were moved aside, by whatever process, and are still there: of each domain the newest one.
LM_FOUNDATION QStringList preferencesFilesKeptAside();
