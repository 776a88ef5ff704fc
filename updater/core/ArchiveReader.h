#pragma once

#include "updater/core/UpdateArchive.h"

#include <functional>
#include <memory>

struct archive;
struct archive_entry;

/// Reads the entries of an archive one after the other, with the limits on what comes out of it.
class ArchiveReader
{
public:
    ArchiveReader(const QByteArray &bytes, const ArchiveLimits &limits);
    ~ArchiveReader();
    ArchiveReader(const ArchiveReader &) = delete;
    ArchiveReader &operator=(const ArchiveReader &) = delete;

    /// The next entry, valid until the next call; null at the end and after a problem.
    archive_entry *next();
    /// The data of the present entry in pieces, without its holes: `take` answers with a problem, or nothing.
    using Take = std::function<QString(const char *bytes, size_t size, qint64 offset)>;
    bool readData(const Take &take);

    const QString &problem() const { return problem_; }
    QString libraryProblem() const;

private:
    bool fail(const QString &problem);
    bool isWithinLimits();

    struct Closing
    {
        void operator()(archive *reader) const;
    };
    std::unique_ptr<archive, Closing> reader_;
    ArchiveLimits limits_;
    qint64 mostBytes_ = 0;
    qsizetype entries_ = 0;
    qint64 bytes_ = 0; ///< that the entries so far announce, holes included
    qint64 entryBytes_ = 0; ///< that the present one announces
    QString problem_;
};
