#include "platform/foundation/machine/linux/MachineFiles.h"

#include "platform/foundation/machine/Gestalt.h"

#include <QFile>
#include <chrono>
#include <sys/stat.h>
#include <sys/utsname.h>

namespace {

constexpr qint64 mostRead = 1024 * 1024;

QByteArray pathBelowRoot(const char *path)
{
    return qgetenv("LUMAROO_SYSTEM_ROOT") + path;
}

/// Empty where it cannot be read.
QByteArray content(const char *path)
{
    QFile file(QFile::decodeName(pathBelowRoot(path)));
    return file.open(QIODevice::ReadOnly) ? file.read(mostRead) : QByteArray();
}

/// Device-tree files end in a byte of zero.
QByteArray textLine(const char *path)
{
    return content(path).split('\0').first().split('\n').first().trimmed();
}

/// What stands after a name and a colon, in the first line that has both; empty where none has.
QByteArray valueAfter(const QByteArray &name, const QByteArray &content)
{
    for (const QByteArray &line : content.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.left(colon).trimmed() == name)
            return line.mid(colon + 1).trimmed();
    }
    return {};
}

/// How many numbers a list like "0-3,8" holds.
std::optional<quint32> countOfList(const QByteArray &list)
{
    quint32 count = 0;
    for (const QByteArray &range : list.split(',')) {
        const QList<QByteArray> ends = range.split('-');
        bool isNumber = false;
        const quint32 first = ends.first().toUInt(&isNumber);
        const quint32 last = isNumber ? ends.last().toUInt(&isNumber) : 0;
        if (!isNumber || ends.size() > 2 || last < first)
            return std::nullopt;
        count += last - first + 1;
    }
    return count;
}

/// Tells a file that has changed from the same one.
struct FileVersion
{
    QByteArray path;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 changed = 0; ///< nanoseconds since 1970
    bool isSettled = false; ///< a change from now on would show

    bool operator==(const FileVersion &) const = default;
};

FileVersion versionOfFile(const char *path)
{
    // File times advance in steps, of two seconds on some file systems.
    constexpr qint64 longestTimeStep = 2'500'000'000;
    constexpr qint64 nanoseconds = 1'000'000'000;
    const QByteArray whole = pathBelowRoot(path);
    struct stat status = {};
    if (::stat(whole.constData(), &status) != 0)
        return {};
    const qint64 changed = status.st_ctim.tv_sec * nanoseconds + status.st_ctim.tv_nsec;
    const qint64 now = std::chrono::nanoseconds(std::chrono::system_clock::now().time_since_epoch()).count();
    return {whole, status.st_dev, status.st_ino, status.st_size, changed, now - changed > longestTimeStep};
}

} // namespace

QByteArray machineModel()
{
    for (const char *path : {"/sys/class/dmi/id/product_name", "/sys/firmware/devicetree/base/model"}) {
        const QByteArray model = textLine(path);
        if (!model.isEmpty())
            return model;
    }
    return {};
}

std::optional<quint64> processorClock()
{
    constexpr double hertzInMegahertz = 1'000'000;
    bool isNumber = false;
    const quint64 kilohertz = textLine("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq").toULongLong(&isNumber);
    if (isNumber)
        return kilohertz * 1000;
    // Virtual machines have no scaling of the clock.
    const double megahertz = valueAfter("cpu MHz", content("/proc/cpuinfo")).toDouble(&isNumber);
    return isNumber && megahertz > 0 ? std::optional(quint64(megahertz * hertzInMegahertz)) : std::nullopt;
}

std::optional<quint64> memoryMebibytes()
{
    bool isNumber = false;
    const QByteArray kibibytes = valueAfter("MemTotal", content("/proc/meminfo")).split(' ').first();
    const quint64 size = kibibytes.toULongLong(&isNumber);
    return isNumber ? std::optional(size / 1024) : std::nullopt;
}

std::optional<quint32> processorsInUse()
{
    return countOfList(textLine("/sys/devices/system/cpu/online"));
}

/// One answer is asked for in four parts, by each that wants to know the version: a file that is as it was is not read
/// again.
std::optional<SystemVersion> systemVersion()
{
    static FileVersion versionRead;
    static std::optional<SystemVersion> version;
    const FileVersion now = versionOfFile("/etc/os-release");
    if (!now.isSettled || now != versionRead) {
        version = systemVersionOf(content("/etc/os-release"));
        versionRead = now;
    }
    return version;
}

std::optional<quint32> processorCode()
{
    utsname names = {};
    if (uname(&names) != 0)
        return std::nullopt;
    const QByteArray machine = names.machine;
    if (machine == "x86_64" || (machine.startsWith('i') && machine.endsWith("86")))
        return fourCharCode("ixxx");
    quint32 code = 0;
    for (const char character : machine.leftJustified(4, ' ', true))
        code = code << 8 | quint8(character);
    return code;
}
