#include "crashreporter/ProcessorNames.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

struct ProcessorName
{
    quint32 code;
    const char *name;
};

constexpr ProcessorName names[] = {
    {0, "Motorola 68000"},
    {1, "Motorola 68010"},
    {2, "Motorola 68020"},
    {3, "Motorola 68030"},
    {4, "Motorola 68040"},
    {257, "PowerPC 601"},
    {259, "PowerPC 603"},
    {260, "PowerPC 604"},
    {262, "PowerPC 603e"},
    {263, "PowerPC 603ev"},
    {264, "PowerPC G3"},
    {265, "PowerPC 604e"},
    {266, "PowerPC 604ev"},
    {268, "PowerPC G4"},
    {272, "PowerPC G4"},
};

} // namespace

QString processorNameOf(quint32 code)
{
    const auto *known =
        std::find_if(std::begin(names), std::end(names), [code](const auto &row) { return row.code == code; });
    if (known != std::end(names))
        return QLatin1StringView(known->name);
    const auto bytes = std::bit_cast<std::array<char, sizeof(code)>>(code);
    const bool isText = std::all_of(bytes.begin(), bytes.end(), [](char byte) { return quint8(byte) >= 0x20; });
    const QString number = QString::number(qint32(code));
    if (!isText)
        return QStringLiteral("Unknown (%1)").arg(number);
    return QStringLiteral("Unknown (%1/%2)").arg(number, QString::fromLatin1(bytes.data(), bytes.size()));
}
