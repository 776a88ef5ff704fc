#include "platform/foundation/preferences/linux/SettingsFile.h"

#include "platform/foundation/preferences/linux/FileLock.h"
#include "platform/foundation/preferences/linux/FileReplacement.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/system/NSLog.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <algorithm>
#include <cerrno>
#include <climits>

using Content = StoredSettings::Content;

namespace {

constexpr int longestLinkChain = 40;
constexpr int mostFilesKeptAside = 1000;

bool makeFolders(const QByteArray &folder)
{
    if (systemCalls().mkdir(folder.constData(), 0700) == 0 || errno == EEXIST)
        return true;
    return errno == ENOENT && folder.size() > 1 && makeFolders(folderOf(folder))
        && systemCalls().mkdir(folder.constData(), 0700) == 0;
}

QByteArray lockPathFor(const QByteArray &path)
{
    const qsizetype name = path.lastIndexOf('/') + 1;
    return path.left(name) + '.' + path.mid(name) + ".lock";
}

SystemError lockError()
{
    if (errno == ETIMEDOUT)
        return {QStringLiteral("another process keeps it locked"), ETIMEDOUT};
    return systemError("lock");
}

PreferencesTrouble::Cause causeOf(int errorNumber)
{
    using Cause = PreferencesTrouble::Cause;
    static const QHash<int, Cause> causes{{ENOSPC, Cause::FullDisk}, {EDQUOT, Cause::FullDisk},
        {EROFS, Cause::ReadOnlyDisk}, {EACCES, Cause::NoPermission}, {EPERM, Cause::NoPermission},
        {ETIMEDOUT, Cause::Locked}, {EFBIG, Cause::TooLarge}};
    return causes.value(errorNumber, Cause::Other);
}

} // namespace

const QVariantMap &SettingsFile::values()
{
    current();
    return stored_.values();
}

bool SettingsFile::update(const Change &change)
{
    const Content content = current();
    if (content != Content::Values)
        return content == Content::Unreadable ? failToRead() : false;
    const QVariantMap changed = change(stored_.values());
    if (isEqualPropertyList(changed, stored_.values()))
        return securePreviousWrite();
    const QByteArray path = target();
    if (!makeFolders(folderOf(path)))
        return failToWrite(systemError("mkdir"));
    const FileLock lock(lockPathFor(path));
    return lock ? updateUnderLock(change, changed, path) : failToWrite(lockError());
}

/// What was worked out before holds unless another process has written meanwhile.
bool SettingsFile::updateUnderLock(const Change &change, const QVariantMap &changedBefore, const QByteArray &path)
{
    const quint64 readingBefore = stored_.reading();
    const Content content = stored_.refresh();
    if (content == Content::Damaged && !moveAsideUnderLock(path))
        return false;
    if (content == Content::Unreadable)
        return failToRead();
    if (stored_.reading() == readingBefore)
        return write(path, changedBefore);
    const QVariantMap changed = change(stored_.values());
    return isEqualPropertyList(changed, stored_.values()) ? securePreviousWrite() : write(path, changed);
}

bool SettingsFile::write(const QByteArray &path, const QVariantMap &values)
{
    const QByteArray bytes = writeBinaryPropertyList(values);
    if (bytes.isEmpty())
        return failToWrite({QStringLiteral("it would be more than a property list may hold"), EFBIG});
    const FileReplacement replacement = replaceFile(path, bytes);
    if (replacement.outcome == FileReplacement::Outcome::Unchanged)
        return failToWrite(replacement.error);
    stored_.adopt(values, bytes, replacement.status);
    unsecuredFolder_ = folderOf(path);
    if (replacement.outcome == FileReplacement::Outcome::Replaced)
        return failToSecure(replacement.error);
    unsecuredFolder_.clear();
    return succeed();
}

/// After a write whose folder could not be synced the file holds everything, and only that is left to do.
bool SettingsFile::securePreviousWrite()
{
    const SystemError error = unsecuredFolder_.isEmpty() ? SystemError() : secureFolder(unsecuredFolder_);
    if (error)
        return failToSecure(error);
    unsecuredFolder_.clear();
    return succeed();
}

Content SettingsFile::current()
{
    const Content content = stored_.refresh();
    return content == Content::Damaged ? moveAside() : content;
}

/// Reads again under the lock: another process may have put the file in order meanwhile, or be about to.
Content SettingsFile::moveAside()
{
    const QByteArray path = target();
    const FileLock lock(lockPathFor(path));
    if (!lock) {
        failToMoveAside(stored_.problem(), lockError());
        return Content::Damaged;
    }
    const Content content = stored_.refresh();
    return content == Content::Damaged && moveAsideUnderLock(path) ? Content::Values : content;
}

bool SettingsFile::moveAsideUnderLock(const QByteArray &path)
{
    const SystemError damage = stored_.problem();
    for (int number = 1; number <= mostFilesKeptAside; ++number) {
        const QByteArray suffix = '~' + QByteArray::number(number);
        if (systemCalls().renameWithoutReplacing(path.constData(), (path + suffix).constData()) == 0) {
            NSLog(QStringLiteral("lumaroo: settings: %1 does not parse (%2); kept as %1%3, starting empty")
                      .arg(name(), damage.text, QString::fromLatin1(suffix)));
            ++timesMovedAside_;
            stored_.refresh();
            return true;
        }
        if (errno != EEXIST)
            break;
    }
    return failToMoveAside(damage, systemError("rename"));
}

bool SettingsFile::fail(const QString &problem, const SystemError &reason, PreferencesTrouble::Extent extent)
{
    if (problem != reported_)
        NSLog(QStringLiteral("lumaroo: settings: %1 %2; changes wait for the next attempt").arg(name(), problem));
    reported_ = problem;
    trouble_ = {causeOf(reason.number), extent, QFile::decodeName(path_), reason.text};
    return false;
}

bool SettingsFile::failToRead()
{
    const SystemError &reason = stored_.problem();
    return fail(QStringLiteral("cannot be read (%1)").arg(reason.text), reason, PreferencesTrouble::Extent::Unreadable);
}

bool SettingsFile::failToWrite(const SystemError &reason)
{
    return fail(
        QStringLiteral("cannot be written (%1)").arg(reason.text), reason, PreferencesTrouble::Extent::NotStored);
}

bool SettingsFile::failToSecure(const SystemError &reason)
{
    return fail(QStringLiteral("is written but might not survive a power failure (%1)").arg(reason.text), reason,
        PreferencesTrouble::Extent::NotSecured);
}

bool SettingsFile::failToMoveAside(const SystemError &damage, const SystemError &reason)
{
    return fail(QStringLiteral("does not parse (%1) and cannot be moved aside (%2)").arg(damage.text, reason.text),
        reason, PreferencesTrouble::Extent::Unreadable);
}

bool SettingsFile::succeed()
{
    reported_.clear();
    trouble_.reset();
    return true;
}

QString SettingsFile::name() const
{
    return QFile::decodeName(path_.mid(path_.lastIndexOf('/') + 1));
}

/// Where the settings really lie: links at the path are followed and stay.
QByteArray SettingsFile::target() const
{
    QByteArray path = path_;
    for (int followed = 0; followed < longestLinkChain; ++followed) {
        QByteArray link(PATH_MAX, '\0');
        const ssize_t size = systemCalls().readlink(path.constData(), link.data(), size_t(link.size()));
        if (size < 0)
            break;
        link.truncate(size);
        path = link.startsWith('/') ? link : folderOf(path) + '/' + link;
    }
    return path;
}

QString SettingsFile::newestKeptAside() const
{
    const QString path = QFile::decodeName(target());
    const QString beginning = QFileInfo(path).fileName() + u'~';
    int newest = 0;
    for (const QString &file : QFileInfo(path).dir().entryList(QDir::Files | QDir::Hidden)) {
        if (file.startsWith(beginning))
            newest = std::max(newest, file.mid(beginning.size()).toInt());
    }
    return newest > 0 ? path + u'~' + QString::number(newest) : QString();
}
