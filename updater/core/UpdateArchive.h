#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// What an archive may be; for tests, and smaller ones, these can be set.
struct ArchiveLimits
{
    qsizetype entries = 10000;
    qint64 bytes = qint64(1024) * 1024 * 1024; ///< unpacked, altogether
    qint64 ratio = 100; ///< of what is unpacked to the archive's size, over the first MiB
};

struct ArchiveEntry
{
    enum class Kind { Folder, File, Link };
    QString path; ///< below the folder that is unpacked into; no part of it is empty, "." or ".."
    Kind kind = Kind::File;
    qint64 size = 0;
    QString target; ///< of a link; leads to within the bundle
};

/// What an archive holds, or why it is refused.
struct ArchiveListing
{
    QList<ArchiveEntry> entries;
    QString bundle; ///< the name of the one folder that all of it lies in
    QString error; ///< empty on success; in English, for the log

    explicit operator bool() const { return error.isEmpty(); }
};

/// Reads an archive from its first byte to its last: a tar file, plain or compressed by gzip or xz. Writes nothing.
///
/// Refused are: absolute paths, "..", what lies outside the one folder, a path twice, anything behind a link, links out
/// of the bundle, hard links, devices, pipes, sockets, names that are no UTF-8, and what exceeds the limits.
ArchiveListing listUpdateArchive(const QByteArray &archive, const ArchiveLimits &limits = {});

/// Unpacks an archive into an empty folder; empty, or why not. An archive whose listing is refused leaves the folder
/// empty. Owners, times, special bits and attributes of the archive do not count: files are 0644 or 0755.
QString unpackUpdateArchive(const QByteArray &archive, const QString &folder, const ArchiveLimits &limits = {});

/// One file of an archive, of 1 MiB at most; empty where it is not there.
QByteArray fileOfUpdateArchive(const QByteArray &archive, const QString &path);
