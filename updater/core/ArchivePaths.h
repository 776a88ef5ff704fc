#pragma once

#include "updater/core/UpdateArchive.h"

#include <QSet>

/// Decides, entry by entry in the archive's order, what may be unpacked.
class ArchivePaths
{
public:
    /// Empty, or why the entry is refused.
    QString add(const ArchiveEntry &entry);

    /// The name of the one folder that everything lies in; empty before the first entry.
    const QString &bundle() const { return bundle_; }

private:
    QString problemOfPath(const QString &path) const;
    static bool leadsOutside(const ArchiveEntry &link);

    QString bundle_;
    QSet<QString> paths_; ///< of files and links
    QSet<QString> folders_; ///< named, or on the way to something
};
