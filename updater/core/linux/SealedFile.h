#pragma once

#include "platform/foundation/system/SystemCalls.h"

#include <QString>

/// A copy of a file that nobody can change any more, neither by its name nor by an open descriptor: what was checked is
/// what is used. It lies in memory.
class SealedFile
{
public:
    /// Copies a regular file, not following a link at the path. Where that fails, or the file is larger than `largest`
    /// or empty, the copy is empty and problem() tells why.
    static SealedFile copyOf(const QString &path, qint64 largest);

    ~SealedFile();
    SealedFile(SealedFile &&other) noexcept;
    SealedFile(const SealedFile &) = delete;
    SealedFile &operator=(const SealedFile &) = delete;

    explicit operator bool() const { return bytes_ != nullptr; }
    const QString &problem() const { return problem_; }
    /// Valid for as long as this object lives.
    QByteArray bytes() const { return QByteArray::fromRawData(static_cast<const char *>(bytes_), size_); }

private:
    SealedFile() = default;
    static SealedFile refused(const QString &problem);

    void *bytes_ = nullptr; ///< mapped
    qsizetype size_ = 0;
    QString problem_;
};
