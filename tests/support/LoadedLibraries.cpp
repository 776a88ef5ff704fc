#include "LoadedLibraries.h"

#include <QFile>

QStringList filesInMemoryOf(qint64 process)
{
    QFile maps(QStringLiteral("/proc/%1/maps").arg(process));
    QStringList files;
    if (maps.open(QIODevice::ReadOnly)) {
        for (const QString &line : QString::fromUtf8(maps.readAll()).split(u'\n')) {
            const qsizetype path = line.indexOf(u'/');
            if (path >= 0)
                files += line.mid(path);
        }
    }
    files.removeDuplicates();
    return files;
}
