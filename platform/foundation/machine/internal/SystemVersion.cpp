#include "platform/foundation/machine/internal/SystemVersion.h"

#include <algorithm>
#include <limits>

namespace {

constexpr quint32 highestMajor = 99;
constexpr quint32 highestPart = 15;

/// The value of a shell's assignment: what is in quotes, or everything up to the first blank.
QByteArray withoutQuotes(const QByteArray &text)
{
    const bool isQuoted = text.startsWith('"') || text.startsWith('\'');
    return isQuoted ? text.split(text.front()).at(1) : text.split(' ').first();
}

/// The last one counts, as in a shell.
QByteArray versionLine(const QByteArray &osRelease)
{
    static const QByteArray name = "VERSION_ID=";
    QByteArray value;
    for (const QByteArray &line : osRelease.split('\n')) {
        const QByteArray assignment = line.trimmed();
        if (assignment.startsWith(name))
            value = withoutQuotes(assignment.mid(name.size()));
    }
    return value;
}

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Takes the number at the beginning of `text`; none where there is no digit.
std::optional<quint32> takeNumber(QByteArray &text)
{
    const auto end = std::find_if_not(text.cbegin(), text.cend(), isDigit);
    const QByteArray digits = text.first(end - text.cbegin());
    text.remove(0, digits.size());
    bool fits = true;
    const quint32 value = digits.toUInt(&fits);
    if (digits.isEmpty())
        return std::nullopt;
    return fits ? value : std::numeric_limits<quint32>::max();
}

/// The same behind a dot; 0 where there is none.
quint32 takePart(QByteArray &text)
{
    QByteArray behindDot = text.mid(1);
    const auto part = text.startsWith('.') ? takeNumber(behindDot) : std::nullopt;
    text = part ? behindDot : QByteArray();
    return part.value_or(0);
}

} // namespace

std::optional<SystemVersion> systemVersionOf(const QByteArray &osRelease)
{
    // By hand: regular expressions would bring their library into the memory of programs that have none.
    QByteArray version = versionLine(osRelease);
    const auto major = takeNumber(version);
    if (!major)
        return std::nullopt;
    const quint32 minor = takePart(version);
    return SystemVersion{*major, minor, takePart(version)};
}

quint32 packedSystemVersion(const SystemVersion &version)
{
    const quint32 major = std::min(version.major, highestMajor);
    return (major / 10) << 12 | (major % 10) << 8 | std::min(version.minor, highestPart) << 4
        | std::min(version.bugFix, highestPart);
}
