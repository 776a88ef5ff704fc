#include "platform/foundation/preferences/linux/StoredSettings.h"

#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListBounds.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstring>
#include <fcntl.h>

using namespace std::chrono_literals;

namespace {

constexpr int readingFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY; // a pipe at the path must not make us wait
// File times advance in steps, of two seconds on some file systems; a change within the same step cannot be seen by
// them.
constexpr auto longestTimeStep = 2500ms;

std::chrono::nanoseconds durationOf(const timespec &time)
{
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

bool isSameVersion(const struct stat &left, const struct stat &right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino && left.st_size == right.st_size
        && durationOf(left.st_mtim) == durationOf(right.st_mtim)
        && durationOf(left.st_ctim) == durationOf(right.st_ctim);
}

/// The whole file, or as much as shows that it is longer than a property list may be. False after a failure.
bool readAll(int descriptor, qint64 expectedSize, QByteArray *bytes)
{
    constexpr qint64 limit = PropertyListBounds::maximumBytes + 1;
    constexpr qint64 laterPortion = 65536;
    qint64 portion = std::min(expectedSize + 1, limit);
    while (bytes->size() < limit) {
        const qint64 size = bytes->size();
        const qint64 asked = std::min(portion, limit - size);
        bytes->resize(size + asked);
        const ssize_t count =
            uninterrupted([&] { return systemCalls().pread(descriptor, bytes->data() + size, size_t(asked), size); });
        bytes->resize(size + std::max(ssize_t(0), count));
        const bool endsAsExpected = count < asked && bytes->size() == expectedSize;
        if (count <= 0 || endsAsExpected)
            return count >= 0;
        portion = laterPortion;
    }
    return true;
}

} // namespace

StoredSettings::Content StoredSettings::refresh()
{
    if (isUnchanged())
        return content_;
    FileDescriptor file = FileDescriptor::opened(path_, readingFlags);
    if (file)
        return readOpened(std::move(file));
    if (errno != ENOENT)
        return unreadable(systemError("open"));
    forgetFile();
    return find(Content::Values);
}

void StoredSettings::adopt(const QVariantMap &values, const QByteArray &bytes, const struct stat &written)
{
    forgetFile();
    FileDescriptor file = FileDescriptor::opened(path_, readingFlags);
    struct stat status;
    if (!file || systemCalls().fstat(file.get(), &status) != 0 || status.st_ino != written.st_ino
        || durationOf(status.st_mtim) != durationOf(written.st_mtim))
        return;
    file_ = std::move(file);
    status_ = status;
    bytes_ = bytes;
    keep(Content::Values, {}, values);
}

bool StoredSettings::isUnchanged()
{
    struct stat status;
    return file_ && systemCalls().stat(path_.constData(), &status) == 0 && isSameVersion(status, status_)
        && (isSettled() || holdsTheSameBytes());
}

bool StoredSettings::isSettled() const
{
    const auto changed = std::max(durationOf(status_.st_mtim), durationOf(status_.st_ctim));
    return bytesReadAt_ - changed > longestTimeStep;
}

/// With one call, since every key that is read soon after a change asks: a byte more than expected is asked for, and
/// shows that there is one.
bool StoredSettings::holdsTheSameBytes()
{
    const auto now = systemCalls().realTime();
    bytesNow_.resize(bytes_.size() + 1);
    const ssize_t count = uninterrupted(
        [this] { return systemCalls().pread(file_.get(), bytesNow_.data(), size_t(bytesNow_.size()), 0); });
    if (count != bytes_.size() || std::memcmp(bytesNow_.constData(), bytes_.constData(), size_t(count)) != 0)
        return false;
    bytesReadAt_ = now;
    return true;
}

StoredSettings::Content StoredSettings::readOpened(FileDescriptor file)
{
    forgetFile();
    struct stat status;
    if (systemCalls().fstat(file.get(), &status) != 0)
        return unreadable(systemError("fstat"));
    if (!S_ISREG(status.st_mode))
        return unreadable(
            {S_ISDIR(status.st_mode) ? QStringLiteral("it is a folder") : QStringLiteral("it is no file")});
    bytesReadAt_ = systemCalls().realTime();
    if (!readAll(file.get(), status.st_size, &bytes_))
        return unreadable(systemError("read"));
    file_ = std::move(file);
    status_ = status;
    return parse();
}

StoredSettings::Content StoredSettings::parse()
{
    const PropertyListReading reading = readPropertyList(bytes_);
    if (!reading && reading.errorOffset >= 0)
        return find(Content::Damaged, {QStringLiteral("byte %1").arg(reading.errorOffset)});
    if (!reading)
        return find(Content::Damaged, {reading.error});
    if (reading.value.typeId() != QMetaType::QVariantMap)
        return find(Content::Damaged, {QStringLiteral("it holds no dictionary")});
    return find(Content::Values, {}, reading.value.toMap());
}

StoredSettings::Content StoredSettings::keep(Content content, const SystemError &problem, const QVariantMap &values)
{
    content_ = content;
    problem_ = problem;
    values_ = values;
    ++reading_;
    return content;
}

StoredSettings::Content StoredSettings::find(Content content, const SystemError &problem, const QVariantMap &values)
{
    // What the first look finds is no change.
    if (std::exchange(hasLooked_, true) && !isEqualPropertyList(values, values_))
        ++changesByOthers_;
    return keep(content, problem, values);
}

StoredSettings::Content StoredSettings::unreadable(const SystemError &problem)
{
    forgetFile();
    return find(Content::Unreadable, problem);
}

void StoredSettings::forgetFile()
{
    closeLater(std::exchange(file_, FileDescriptor()));
    bytes_.clear();
    bytesReadAt_ = {};
}

/// Closing a file that another one has replaced frees it on the disk, which takes longer than reading the new one. One
/// file at most waits.
void StoredSettings::closeLater(FileDescriptor file)
{
    outdatedFile_.reset();
    if (!file || !QCoreApplication::instance())
        return;
    outdatedFile_ = std::make_shared<FileDescriptor>(std::move(file));
    const auto close = [outdated = std::weak_ptr(outdatedFile_)] {
        if (const auto stillOpen = outdated.lock())
            *stillOpen = FileDescriptor();
    };
    QMetaObject::invokeMethod(QCoreApplication::instance(), close, Qt::QueuedConnection);
}
