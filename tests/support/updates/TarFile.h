#pragma once

#include <QByteArray>
#include <QString>

/// One entry of an archive made by hand, as no tar program would make it.
struct TarEntry
{
    enum Kind : char {
        File = '0',
        HardLink = '1',
        SymbolicLink = '2',
        CharacterDevice = '3',
        BlockDevice = '4',
        Folder = '5',
        Pipe = '6'
    };
    QByteArray path;
    Kind kind = File;
    QByteArray content = {};
    QByteArray target = {};
    int mode = 0644;
};

/// The bytes of a tar file with these entries, in this order.
QByteArray tarFile(const QList<TarEntry> &entries);

/// The same compressed, by the program of this name (gzip, xz).
QByteArray compressed(const QByteArray &bytes, const QString &program);
