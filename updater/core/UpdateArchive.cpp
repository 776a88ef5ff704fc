#include "updater/core/UpdateArchive.h"

#include "updater/core/ArchivePaths.h"
#include "updater/core/ArchiveReader.h"
#include "updater/core/linux/FolderThread.h"

#include <QFile>
#include <QStringDecoder>
#include <archive.h>
#include <archive_entry.h>
#include <optional>

namespace {

constexpr qint64 largestFileRead = qint64(1024) * 1024;
constexpr unsigned executableByOwner = 0100;

constexpr int protections = ARCHIVE_EXTRACT_SECURE_SYMLINKS | ARCHIVE_EXTRACT_SECURE_NODOTDOT
    | ARCHIVE_EXTRACT_SECURE_NOABSOLUTEPATHS | ARCHIVE_EXTRACT_NO_OVERWRITE;

struct Writing
{
    void operator()(archive *writer) const { archive_write_free(writer); }
};
using Writer = std::unique_ptr<archive, Writing>;

/// The text of a name as it stands in the archive, or nothing where it is no UTF-8.
std::optional<QString> textOf(const char *name)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(QByteArrayView(name ? name : ""));
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

QString withoutTrailingSlash(const QString &path)
{
    return path.size() > 1 && path.endsWith(u'/') ? path.chopped(1) : path;
}

std::optional<ArchiveEntry::Kind> kindOf(archive_entry *entry)
{
    if (archive_entry_hardlink(entry))
        return std::nullopt;
    switch (archive_entry_filetype(entry)) {
    case AE_IFDIR:
        return ArchiveEntry::Kind::Folder;
    case AE_IFREG:
        return ArchiveEntry::Kind::File;
    case AE_IFLNK:
        return ArchiveEntry::Kind::Link;
    default:
        return std::nullopt;
    }
}

/// The entry, or why it is refused.
QString read(archive_entry *raw, ArchiveEntry &entry)
{
    const std::optional<QString> path = textOf(archive_entry_pathname(raw));
    const std::optional<QString> target = textOf(archive_entry_symlink(raw));
    if (!path || !target)
        return QStringLiteral("its name is no UTF-8");
    entry.path = withoutTrailingSlash(*path);
    const std::optional<ArchiveEntry::Kind> kind = kindOf(raw);
    if (!kind)
        return QStringLiteral("it is neither file nor folder nor symbolic link");
    entry.kind = *kind;
    entry.size = archive_entry_size(raw);
    entry.target = entry.kind == ArchiveEntry::Kind::Link ? *target : QString();
    return {};
}

QString nothing(const char *, size_t, qint64)
{
    return {};
}

QString libraryProblem(archive *writer)
{
    const char *text = archive_error_string(writer);
    const QString what = text ? QString::fromUtf8(text) : QStringLiteral("it cannot be written");
    const int error = archive_errno(writer);
    return error > 0 ? QStringLiteral("%1 (%2)").arg(what, qt_error_string(error)) : what;
}

/// What of an entry counts here; the rest of what the archive says about it is left behind.
void keepOnlyWhatCounts(archive_entry *entry)
{
    const bool isExecutable =
        archive_entry_filetype(entry) == AE_IFDIR || (archive_entry_perm(entry) & executableByOwner) != 0;
    archive_entry_set_perm(entry, isExecutable ? 0755 : 0644);
    archive_entry_set_fflags(entry, 0, 0);
    archive_entry_acl_clear(entry);
    archive_entry_xattr_clear(entry);
}

QString writeEntry(ArchiveReader &reader, archive *writer, archive_entry *entry)
{
    keepOnlyWhatCounts(entry);
    if (archive_write_header(writer, entry) != ARCHIVE_OK)
        return libraryProblem(writer);
    const auto write = [writer](const char *bytes, size_t size, qint64 offset) {
        return archive_write_data_block(writer, bytes, size, offset) == ARCHIVE_OK ? QString() : libraryProblem(writer);
    };
    if (archive_entry_filetype(entry) == AE_IFREG && !reader.readData(write))
        return reader.problem();
    return archive_write_finish_entry(writer) == ARCHIVE_OK ? QString() : libraryProblem(writer);
}

/// Into the folder that the calling thread is in.
QString unpackHere(const QByteArray &bytes, const ArchiveLimits &limits)
{
    ArchiveReader reader(bytes, limits);
    const Writer writer(archive_write_disk_new());
    archive_write_disk_set_options(writer.get(), protections);
    while (archive_entry *entry = reader.next()) {
        const QString problem = writeEntry(reader, writer.get(), entry);
        if (!problem.isEmpty())
            return problem;
    }
    if (!reader.problem().isEmpty())
        return reader.problem();
    return archive_write_close(writer.get()) == ARCHIVE_OK ? QString() : libraryProblem(writer.get());
}

} // namespace

ArchiveListing listUpdateArchive(const QByteArray &bytes, const ArchiveLimits &limits)
{
    ArchiveReader reader(bytes, limits);
    ArchivePaths paths;
    ArchiveListing listing;
    while (archive_entry *raw = reader.next()) {
        ArchiveEntry entry;
        QString problem = read(raw, entry);
        if (problem.isEmpty())
            problem = paths.add(entry);
        if (!problem.isEmpty())
            return {{}, {}, QStringLiteral("\"%1\": %2").arg(entry.path, problem)};
        if (!reader.readData(nothing))
            break;
        listing.entries += entry;
    }
    listing.bundle = paths.bundle();
    listing.error = reader.problem();
    if (listing.error.isEmpty() && listing.entries.isEmpty())
        listing.error = QStringLiteral("it is empty");
    return listing.error.isEmpty() ? listing : ArchiveListing{{}, {}, listing.error};
}

QString unpackUpdateArchive(const QByteArray &bytes, const QString &folder, const ArchiveLimits &limits)
{
    const ArchiveListing listing = listUpdateArchive(bytes, limits);
    if (!listing)
        return listing.error;
    return runInFolder(folder, [&] { return unpackHere(bytes, limits); });
}

QByteArray fileOfUpdateArchive(const QByteArray &bytes, const QString &path)
{
    ArchiveReader reader(bytes, {});
    while (archive_entry *raw = reader.next()) {
        ArchiveEntry entry;
        if (!read(raw, entry).isEmpty() || entry.path != path || entry.kind != ArchiveEntry::Kind::File)
            continue;
        QByteArray content;
        const bool isWhole =
            entry.size <= largestFileRead && reader.readData([&content](const char *piece, size_t size, qint64 offset) {
                content.resize(offset, '\0');
                content.append(piece, qsizetype(size));
                return QString();
            });
        return isWhole ? content : QByteArray();
    }
    return {};
}
