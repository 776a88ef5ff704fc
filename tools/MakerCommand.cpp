#include "MakerCommand.h"

#include "updater/core/Appcast.h"

#include <QFile>
#include <QFileInfo>
#include <cstdio>

namespace {

constexpr qint64 largestKey = 1024;

QByteArray keyFrom(QFile &file)
{
    const auto othersRights =
        QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
    if (!file.open(QIODevice::ReadOnly))
        throw MakerFailure(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
    if (file.permissions() & othersRights)
        throw MakerFailure(QStringLiteral("%1 may be read or written by others; make it yours alone (mode 0600)")
                               .arg(file.fileName()));
    return file.read(largestKey);
}

QByteArray keyFromStandardInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw MakerFailure(QStringLiteral("standard input: %1").arg(input.errorString()));
    return input.read(largestKey);
}

} // namespace

SigningKey readSigningKey(const QString &name)
{
    QFile file(name);
    const bool isStandardInput = name == u"-";
    SigningKey key = SigningKey::ofSeed(isStandardInput ? keyFromStandardInput() : keyFrom(file));
    if (!key)
        throw MakerFailure(
            QStringLiteral("%1 holds no key").arg(isStandardInput ? QStringLiteral("standard input") : name));
    return key;
}

QByteArray readArchive(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw MakerFailure(QStringLiteral("%1: %2").arg(name, file.errorString()));
    const QByteArray bytes = file.read(largestUpdateArchive + 1);
    if (bytes.isEmpty() || bytes.size() > largestUpdateArchive)
        throw MakerFailure(QStringLiteral("%1 is empty, or larger than %2 bytes").arg(name).arg(largestUpdateArchive));
    return bytes;
}

int runMakerCommand(const char *program, const std::function<void()> &work)
{
    try {
        work();
        return 0;
    } catch (const MakerFailure &failure) {
        std::fprintf(stderr, "%s: %s\n", program, failure.what());
        return 1;
    }
}
