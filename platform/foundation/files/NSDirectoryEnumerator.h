#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <chrono>
#include <memory>
#include <optional>

/// When a file's content was last changed; of a link the link's own. Nothing where that cannot be told.
LM_FOUNDATION std::optional<std::chrono::nanoseconds> fileModificationDate(const QByteArray &path);

/// Walks everything below a folder, a folder's content right after the folder itself, in no other order. Links are told
/// and not followed; folders that cannot be read, or lie 64 deep, are told and not entered. A folder that is missing is
/// empty.
class LM_FOUNDATION NSDirectoryEnumerator
{
public:
    explicit NSDirectoryEnumerator(const QByteArray &folder);
    ~NSDirectoryEnumerator();
    NSDirectoryEnumerator(const NSDirectoryEnumerator &) = delete;
    NSDirectoryEnumerator &operator=(const NSDirectoryEnumerator &) = delete;

    /// Goes to the next entry; false after the last.
    bool next();
    /// Where the entry lies, beginning in the folder; valid until next().
    const QByteArray &path() const;
    /// The same as path().startsWith(), in a fraction of its time: for those that look for few of many entries.
    bool pathStartsWith(const QByteArray &prefix) const;
    std::optional<std::chrono::nanoseconds> modificationDate() const;
    /// Does not go into the entry, should it be a folder.
    void skipDescendants();

private:
    class Private;
    std::unique_ptr<Private> d;
};
