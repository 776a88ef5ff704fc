#include "updater/core/ArchivePaths.h"

#include <QStringList>

namespace {

constexpr qsizetype longestPath = 1024;
constexpr qsizetype longestName = 255;
constexpr qsizetype deepest = 32;

bool isPlainName(const QString &name)
{
    return !name.isEmpty() && name != u"." && name != u".." && name.toUtf8().size() <= longestName
        && !name.contains(QChar::Null);
}

QStringList foldersOf(const QString &path)
{
    QStringList folders;
    for (qsizetype end = path.indexOf(u'/'); end >= 0; end = path.indexOf(u'/', end + 1))
        folders += path.left(end);
    return folders;
}

} // namespace

QString ArchivePaths::add(const ArchiveEntry &entry)
{
    const QString problem = problemOfPath(entry.path);
    if (!problem.isEmpty())
        return problem;
    const bool isFolder = entry.kind == ArchiveEntry::Kind::Folder;
    const bool isThere = paths_.contains(entry.path) || (!isFolder && folders_.contains(entry.path));
    if (isThere)
        return QStringLiteral("it is there twice");
    if (entry.kind == ArchiveEntry::Kind::Link && leadsOutside(entry))
        return QStringLiteral("it leads out of the bundle, to \"%1\"").arg(entry.target);
    for (const QString &folder : foldersOf(entry.path)) {
        if (paths_.contains(folder))
            return QStringLiteral("it lies behind something that is no folder");
        folders_ += folder;
    }
    (isFolder ? folders_ : paths_) += entry.path;
    bundle_ = entry.path.section(u'/', 0, 0);
    return {};
}

QString ArchivePaths::problemOfPath(const QString &path) const
{
    if (path.startsWith(u'/'))
        return QStringLiteral("its path is absolute");
    const QStringList names = path.split(u'/');
    if (path.size() > longestPath || names.size() > deepest)
        return QStringLiteral("its path is too long");
    if (!std::all_of(names.begin(), names.end(), isPlainName))
        return QStringLiteral("its path is none within the folder");
    if (!bundle_.isEmpty() && names.first() != bundle_)
        return QStringLiteral("it lies outside \"%1\"").arg(bundle_);
    return {};
}

/// A target first goes up from the link's folder, which is no link itself, and then down: so it is clear where each
/// link leads, and one that passes through others stays within as they do.
bool ArchivePaths::leadsOutside(const ArchiveEntry &link)
{
    if (link.target.isEmpty() || link.target.startsWith(u'/') || link.target.size() > longestPath)
        return true;
    qsizetype depth = link.path.count(u'/') - 1; // below the bundle
    bool goesDown = false;
    for (const QString &name : link.target.split(u'/')) {
        if (name == u".." && (goesDown || --depth < 0))
            return true;
        if (name != u".." && !isPlainName(name))
            return true;
        goesDown = goesDown || name != u"..";
    }
    return depth < 0;
}
