#include "crashreporter/QBSystemInformation.h"

#include "crashreporter/MachineNames.h"
#include "crashreporter/ProcessorNames.h"
#include "platform/foundation/machine/Gestalt.h"

#include <optional>
#include <utility>

namespace {

constexpr quint32 highestVersionInOneNumber = 1039;
constexpr qint32 hertzInMegahertz = 1'000'000;

/// Leaves `number` as it is where there is no answer.
bool ask(OSType selector, quint32 *number)
{
    qintptr response = 0;
    if (Gestalt(selector, &response) != noErr)
        return false;
    *number = quint32(response);
    return true;
}

quint32 answerOr0(OSType selector)
{
    quint32 number = 0;
    ask(selector, &number);
    return number;
}

} // namespace

QString QBMachineName()
{
    static QString name;
    qintptr response = 0;
    if (name.isNull() && Gestalt(gestaltUserVisibleMachineName, &response) == noErr)
        name = machineNameOf(QString::fromUtf8(reinterpret_cast<const char *>(response) + 1));
    return name;
}

QString QBCPUName()
{
    return QBAutoreleasedCPUName(false);
}

QString QBAutoreleasedCPUName(bool flag)
{
    static QString name;
    quint32 code = 0;
    if (ask(gestaltNativeCPUtype, &code) && name.isNull())
        name = processorNameOf(code);
    return flag ? std::exchange(name, QString()) : name;
}

quint32 QBClockSpeed()
{
    return quint32(qint32(answerOr0(gestaltProcClkSpeed)) / hertzInMegahertz);
}

quint32 QBCountCores()
{
    quint32 count = 0;
    size_t size = sizeof(count);
    return sysctlbyname("hw.ncpu", &count, &size) == 0 ? count : 1;
}

quint32 QBPhysicalRAMSize()
{
    return answerOr0(gestaltPhysicalRAMSizeInMegabytes);
}

quint32 QBSystemVersion()
{
    return answerOr0(gestaltSystemVersion);
}

void QBGetSystemVersionComponents(quint32 *major, quint32 *minor, quint32 *bugFix)
{
    const quint32 packed = answerOr0(gestaltSystemVersion);
    if (packed > highestVersionInOneNumber) {
        ask(gestaltSystemVersionMajor, major);
        ask(gestaltSystemVersionMinor, minor);
        ask(gestaltSystemVersionBugFix, bugFix);
        return;
    }
    *major = (packed >> 8 & 0xf) + 10 * (packed >> 12 & 0xf);
    *minor = packed >> 4 & 0xf;
    *bugFix = packed & 0xf;
}

QString QBSystemVersionString()
{
    quint32 major = 10;
    quint32 minor = 0;
    quint32 bugFix = 0;
    QBGetSystemVersionComponents(&major, &minor, &bugFix);
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(bugFix);
}
