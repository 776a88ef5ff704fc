#include "platform/foundation/machine/Gestalt.h"

#include "platform/foundation/machine/linux/MachineFiles.h"

#include <QByteArray>
#include <cerrno>
#include <cstring>
#include <limits>

namespace {

template <typename Number>
OSStatus answer(const std::optional<Number> &number, qintptr *response)
{
    if (!number)
        return gestaltUnknownErr;
    *response = qintptr(quint32(*number));
    return noErr;
}

template <typename Part>
OSStatus answerOfVersion(Part part, qintptr *response)
{
    const auto version = systemVersion();
    return answer(version ? std::optional<quint32>(part(*version)) : std::nullopt, response);
}

/// As much as its length can tell, and no half character.
QByteArray shortened(const QByteArray &text)
{
    constexpr auto isInsideCharacter = [](char byte) { return (quint8(byte) & 0xc0) == 0x80; };
    qsizetype length = qMin(text.size(), qsizetype(std::numeric_limits<quint8>::max()));
    while (length > 0 && length < text.size() && isInsideCharacter(text[length]))
        --length;
    return text.first(length);
}

OSStatus answerWithModel(qintptr *response)
{
    static QByteArray text;
    const QByteArray model = shortened(machineModel());
    if (model.isEmpty())
        return gestaltUnknownErr;
    text = char(quint8(model.size())) + model;
    *response = reinterpret_cast<qintptr>(text.constData());
    return noErr;
}

} // namespace

OSStatus Gestalt(OSType selector, qintptr *response)
{
    switch (selector) {
    case gestaltUserVisibleMachineName:
        return answerWithModel(response);
    case gestaltNativeCPUtype:
        return answer(processorCode(), response);
    case gestaltProcClkSpeed:
        return answer(processorClock(), response);
    case gestaltPhysicalRAMSizeInMegabytes:
        return answer(memoryMebibytes(), response);
    case gestaltSystemVersion:
        return answerOfVersion(packedSystemVersion, response);
    case gestaltSystemVersionMajor:
        return answerOfVersion([](const SystemVersion &version) { return version.major; }, response);
    case gestaltSystemVersionMinor:
        return answerOfVersion([](const SystemVersion &version) { return version.minor; }, response);
    case gestaltSystemVersionBugFix:
        return answerOfVersion([](const SystemVersion &version) { return version.bugFix; }, response);
    }
    return gestaltUndefSelectorErr;
}

int sysctlbyname(const char *name, void *value, size_t *size)
{
    const auto fail = [](int error) {
        errno = error;
        return -1;
    };
    if (qstrcmp(name, "hw.ncpu") != 0)
        return fail(ENOENT);
    const auto count = processorsInUse();
    if (!count)
        return fail(EIO);
    if (*size < sizeof(*count))
        return fail(ENOMEM);
    std::memcpy(value, &*count, sizeof(*count));
    *size = sizeof(*count);
    return 0;
}
