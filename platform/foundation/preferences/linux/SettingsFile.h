#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/preferences/PreferencesTrouble.h"
#include "platform/foundation/preferences/linux/StoredSettings.h"

#include <functional>
#include <optional>

/// The file of one settings domain: read as it is now, changed under a kernel lock, replaced whole or not at all.
class LM_FOUNDATION SettingsFile
{
public:
    using Change = std::function<QVariantMap(const QVariantMap &)>;

    explicit SettingsFile(const QByteArray &path) : path_(path), stored_(path) { }

    /// What the file holds now; empty where there is none, or where it cannot be read. A file that does not parse is
    /// moved aside.
    const QVariantMap &values();

    /// Whether values() is what is stored, rather than empty because the file could not be read.
    bool isReadable() { return current() == StoredSettings::Content::Values; }

    /// The same of the last look at the file, without another.
    bool wasReadable() const { return stored_.content() == StoredSettings::Content::Values; }

    /// The values of the last look.
    const QVariantMap &lastValues() const { return stored_.values(); }

    /// How often a look has found that others had changed the values.
    quint64 changesByOthers() const { return stored_.changesByOthers(); }

    /// Applies a change to what the file holds, with no other writer in between. Writes nothing, and makes no system
    /// call that writes, where it changes nothing. False, with one line logged, where the change could not be made to
    /// last; the old or the new file then stands whole.
    bool update(const Change &change);

    /// Why the last update() failed; none after one that did not.
    const std::optional<PreferencesTrouble> &trouble() const { return trouble_; }
    /// How often this process has moved the file aside.
    quint64 timesMovedAside() const { return timesMovedAside_; }
    /// Of the files that were moved aside and are still there the one with the highest number, or empty.
    QString newestKeptAside() const;

private:
    StoredSettings::Content current();
    StoredSettings::Content moveAside();
    bool moveAsideUnderLock(const QByteArray &path);
    bool updateUnderLock(const Change &change, const QVariantMap &changedBefore, const QByteArray &path);
    bool write(const QByteArray &path, const QVariantMap &values);
    bool securePreviousWrite();

    bool fail(const QString &problem, const SystemError &reason, PreferencesTrouble::Extent extent);
    bool failToRead();
    bool failToWrite(const SystemError &reason);
    bool failToSecure(const SystemError &reason);
    bool failToMoveAside(const SystemError &damage, const SystemError &reason);
    bool succeed();
    QString name() const;
    QByteArray target() const;

    QByteArray path_;
    StoredSettings stored_;
    QString reported_; ///< the problem last logged, so that it is not logged again until something has succeeded
    std::optional<PreferencesTrouble> trouble_;
    quint64 timesMovedAside_ = 0;
    QByteArray unsecuredFolder_; ///< where a rename may not survive a power failure yet
};
