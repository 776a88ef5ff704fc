#include "updater/core/ArchiveReader.h"

#include <archive.h>
#include <archive_entry.h>

namespace {

constexpr qint64 bytesWithoutRatio = qint64(1024) * 1024;

} // namespace

void ArchiveReader::Closing::operator()(archive *reader) const
{
    archive_read_free(reader);
}

ArchiveReader::ArchiveReader(const QByteArray &bytes, const ArchiveLimits &limits)
    : reader_(archive_read_new()), limits_(limits),
      mostBytes_(std::min(limits.bytes, bytesWithoutRatio + limits.ratio * qint64(bytes.size())))
{
    archive_read_support_format_tar(reader_.get());
    archive_read_support_filter_gzip(reader_.get());
    archive_read_support_filter_xz(reader_.get());
    if (archive_read_open_memory(reader_.get(), bytes.constData(), size_t(bytes.size())) != ARCHIVE_OK)
        fail(libraryProblem());
}

ArchiveReader::~ArchiveReader() = default;

QString ArchiveReader::libraryProblem() const
{
    const char *text = archive_error_string(reader_.get());
    return text ? QString::fromUtf8(text) : QStringLiteral("it cannot be read");
}

bool ArchiveReader::fail(const QString &problem)
{
    problem_ = problem;
    return false;
}

archive_entry *ArchiveReader::next()
{
    archive_entry *entry = nullptr;
    if (!problem_.isEmpty())
        return nullptr;
    const int result = archive_read_next_header(reader_.get(), &entry);
    if (result == ARCHIVE_EOF)
        return nullptr;
    // A warning means that something of the entry could not be understood.
    if (result != ARCHIVE_OK) {
        fail(libraryProblem());
        return nullptr;
    }
    ++entries_;
    entryBytes_ = archive_entry_size(entry);
    if (entryBytes_ < 0 || entryBytes_ > mostBytes_ - bytes_)
        fail(QStringLiteral("it holds more than %1 bytes").arg(mostBytes_));
    bytes_ += entryBytes_;
    return isWithinLimits() ? entry : nullptr;
}

/// The decompressed bytes count as well: they come too where no entry has them.
bool ArchiveReader::isWithinLimits()
{
    if (!problem_.isEmpty())
        return false;
    if (entries_ > limits_.entries)
        return fail(QStringLiteral("it has more than %1 entries").arg(limits_.entries));
    constexpr qint64 headers = 4096; // of an entry, generously
    if (archive_filter_bytes(reader_.get(), 0) > mostBytes_ + qint64(entries_) * headers)
        return fail(QStringLiteral("it holds more than %1 bytes").arg(mostBytes_));
    return true;
}

bool ArchiveReader::readData(const Take &take)
{
    const void *piece = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    int result = ARCHIVE_OK;
    while ((result = archive_read_data_block(reader_.get(), &piece, &size, &offset)) == ARCHIVE_OK) {
        if (offset < 0 || offset > entryBytes_ || qint64(size) > entryBytes_ - offset)
            return fail(QStringLiteral("an entry has more data than it announces"));
        const QString problem = take(static_cast<const char *>(piece), size, offset);
        if (!problem.isEmpty())
            return fail(problem);
    }
    return result == ARCHIVE_EOF || fail(libraryProblem());
}
