#include "platform/foundation/machine/internal/SystemVersion.h"

#include <QRegularExpression>
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

quint32 number(const QString &digits)
{
    bool fits = true;
    const quint32 value = digits.isEmpty() ? 0 : digits.toUInt(&fits);
    return fits ? value : std::numeric_limits<quint32>::max();
}

} // namespace

std::optional<SystemVersion> systemVersionOf(const QByteArray &osRelease)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]+)(?:\\.([0-9]+)(?:\\.([0-9]+))?)?"));
    const auto parts = form.match(QString::fromUtf8(versionLine(osRelease)));
    if (!parts.hasMatch())
        return std::nullopt;
    return SystemVersion{number(parts.captured(1)), number(parts.captured(2)), number(parts.captured(3))};
}

quint32 packedSystemVersion(const SystemVersion &version)
{
    const quint32 major = std::min(version.major, highestMajor);
    return (major / 10) << 12 | (major % 10) << 8 | std::min(version.minor, highestPart) << 4
        | std::min(version.bugFix, highestPart);
}
