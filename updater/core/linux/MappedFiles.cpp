#include "updater/core/linux/MappedFiles.h"

#include <QDir>
#include <QFile>

namespace {

/// As the kernel writes a path there: the end of a line would be the end of the entry.
QByteArray asInMaps(const QString &folder)
{
    return QFile::encodeName(folder).replace('\n', "\\012") + '/';
}

bool isMappedBy(const QString &process, const QByteArray &start)
{
    QFile maps(QStringLiteral("/proc/%1/maps").arg(process));
    if (!maps.open(QIODevice::ReadOnly))
        return false; // gone meanwhile, or somebody else's
    for (QByteArray line = maps.readLine(); !line.isEmpty(); line = maps.readLine()) {
        if (line.mid(line.indexOf('/')).startsWith(start))
            return true;
    }
    return false;
}

bool isProcess(const QString &name)
{
    return !name.isEmpty() && name.front().isDigit();
}

} // namespace

bool isMappedByAnyProcess(const QString &folder)
{
    const QByteArray start = asInMaps(folder);
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    return std::any_of(
        names.begin(), names.end(), [&](const QString &name) { return isProcess(name) && isMappedBy(name, start); });
}
