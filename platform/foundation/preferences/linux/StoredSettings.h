#pragma once

#include "platform/foundation/preferences/linux/FileReplacement.h"

#include <QVariantMap>
#include <memory>

/// What a settings file holds, read again only where it is another file, or has changed, since the last time.
class StoredSettings
{
public:
    enum class Content {
        Values, ///< the file's, or none where there is no file
        Damaged, ///< there is a file that does not parse
        Unreadable, ///< nobody can tell: no permission, a folder at the path ...
    };

    explicit StoredSettings(const QByteArray &path) : path_(path) { }

    Content refresh();
    /// The last refresh's answer.
    Content content() const { return content_; }
    /// As of the last refresh; empty unless its answer was Values.
    const QVariantMap &values() const { return values_; }
    /// The number of the reading that they came from: as long as it stays, they do.
    quint64 reading() const { return reading_; }
    /// How often a refresh has found other values than before; what adopt() takes over is not counted.
    quint64 changesByOthers() const { return changesByOthers_; }
    /// Why the last refresh did not answer Values.
    const SystemError &problem() const { return problem_; }

    /// Takes over what the caller has just written to the file with this inode, unless another file stands there by
    /// now.
    void adopt(const QVariantMap &values, const QByteArray &bytes, const struct stat &written);

private:
    bool isUnchanged();
    bool holdsTheSameBytes();
    bool isSettled() const;
    Content readOpened(FileDescriptor file);
    Content parse();
    Content keep(Content content, const SystemError &problem = {}, const QVariantMap &values = {});
    Content find(Content content, const SystemError &problem = {}, const QVariantMap &values = {});
    Content unreadable(const SystemError &problem);
    void forgetFile();
    void closeLater(FileDescriptor file);

    QByteArray path_;
    FileDescriptor file_; ///< held open, so that its inode number cannot pass to another file while we compare it
    std::shared_ptr<FileDescriptor> outdatedFile_; ///< the one before, until the run loop has time to close it
    struct stat status_ = {};
    QByteArray bytes_;
    QByteArray bytesNow_; ///< what the last comparison read; kept for its memory
    std::chrono::nanoseconds bytesReadAt_{}; ///< when the bytes were last seen to be these
    Content content_ = Content::Values;
    QVariantMap values_;
    quint64 reading_ = 0;
    bool hasLooked_ = false;
    quint64 changesByOthers_ = 0;
    SystemError problem_;
};
