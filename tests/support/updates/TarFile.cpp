#include "TarFile.h"

#include "ProgramResult.h"

namespace {

constexpr qsizetype blockSize = 512;

void put(QByteArray &header, qsizetype offset, qsizetype size, const QByteArray &text)
{
    if (text.size() > size)
        qFatal("\"%s\" does not fit", text.constData());
    header.replace(offset, text.size(), text);
}

QByteArray octal(qint64 number, int digits)
{
    return QByteArray::number(number, 8).rightJustified(digits, '0');
}

QByteArray headerOf(const TarEntry &entry)
{
    QByteArray header(blockSize, '\0');
    put(header, 0, 100, entry.path);
    put(header, 100, 8, octal(entry.mode, 7));
    put(header, 108, 8, octal(0, 7));
    put(header, 116, 8, octal(0, 7));
    put(header, 124, 12, octal(entry.content.size(), 11));
    put(header, 136, 12, octal(0, 11));
    put(header, 148, 8, QByteArray(8, ' '));
    put(header, 156, 1, QByteArray(1, entry.kind));
    put(header, 157, 100, entry.target);
    put(header, 257, 8, QByteArray("ustar\00000", 8));
    put(header, 329, 8, octal(1, 7));
    put(header, 337, 8, octal(3, 7));
    int sum = 0;
    for (const char byte : header)
        sum += static_cast<unsigned char>(byte);
    put(header, 148, 8, octal(sum, 6) + QByteArray("\0 ", 2));
    return header;
}

QByteArray padding(qsizetype size)
{
    return QByteArray((blockSize - size % blockSize) % blockSize, '\0');
}

} // namespace

QByteArray tarFile(const QList<TarEntry> &entries)
{
    QByteArray bytes;
    for (const TarEntry &entry : entries)
        bytes += headerOf(entry) + entry.content + padding(entry.content.size());
    return bytes + QByteArray(2 * blockSize, '\0');
}

QByteArray compressed(const QByteArray &bytes, const QString &program)
{
    const ProgramResult result = runProgram(program, {QStringLiteral("-c")}, bytes);
    return QByteArray::fromStdString(result.output);
}
