#include "host/linux/PlugInImage.h"

#include <QFile>
#include <QtEndian>
#include <elf.h>
#include <optional>

namespace {

struct Machine
{
    quint8 wordClass;
    quint8 byteOrder;
    quint16 number;

    bool operator==(const Machine &) const = default;
};

struct NamedMachine
{
    quint16 number;
    const char *name;
};

constexpr NamedMachine namedMachines[] = {
    {EM_386, "Intel, 32 bits"},
    {EM_X86_64, "Intel and AMD, 64 bits"},
    {EM_ARM, "ARM, 32 bits"},
    {EM_AARCH64, "ARM, 64 bits"},
    {EM_RISCV, "RISC-V"},
    {EM_PPC64, "POWER, 64 bits"},
    {EM_S390, "IBM Z"},
    {EM_MIPS, "MIPS"},
};

std::optional<Machine> machineOf(const QString &path)
{
    constexpr int machineOffset = offsetof(Elf64_Ehdr, e_machine); // the same in both word classes
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray header = file.read(machineOffset + 2);
    if (header.size() < machineOffset + 2 || !header.startsWith(ELFMAG))
        return std::nullopt;
    const char *number = header.constData() + machineOffset;
    const bool bigEndian = header[EI_DATA] == ELFDATA2MSB;
    return Machine{quint8(header[EI_CLASS]), quint8(header[EI_DATA]),
        bigEndian ? qFromBigEndian<quint16>(number) : qFromLittleEndian<quint16>(number)};
}

QString nameOf(const Machine &machine)
{
    for (const NamedMachine &named : namedMachines) {
        if (named.number == machine.number)
            return QString::fromLatin1(named.name);
    }
    return QString::number(machine.number);
}

} // namespace

PlugInImage readPlugInImage(const QString &path)
{
    const std::optional<Machine> machine = machineOf(path);
    if (!machine)
        return {};
    if (machine == machineOf(QStringLiteral("/proc/self/exe")))
        return {PlugInImage::Kind::ThisMachine, {}};
    return {PlugInImage::Kind::OtherMachine, nameOf(*machine)};
}
