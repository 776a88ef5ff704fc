#include "platform/appkit/help/internal/viewer/HelpCache.h"

#include "platform/appkit/help/internal/viewer/Database.h"
#include "platform/foundation/system/UserFolders.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

/// A name that is one folder, whatever stands in it.
QString folderName(const QString &name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(name, " ", "."));
}

QString folderOfBook(const HelpBook &book)
{
    return userCacheFolder() + QStringLiteral("/lumaroo/help/") + folderName(book.name);
}

/// Changes with whatever may make another help file of it.
QString fingerprint(const QString &path)
{
    const QFileInfo file(path);
    const QString facts = QStringLiteral("%1|%2|%3")
                              .arg(file.canonicalFilePath(), QString::number(file.size()),
                                  QString::number(file.lastModified().toMSecsSinceEpoch()));
    return QString::fromLatin1(QCryptographicHash::hash(facts.toUtf8(), QCryptographicHash::Sha256).toHex().first(12));
}

void removeOtherVersions(const QDir &books, const QString &version)
{
    for (const QString &name : books.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (!name.startsWith(version + u'-'))
            QDir(books.filePath(name)).removeRecursively();
    }
}

bool isWhole(const QString &folder)
{
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.endsWith(QLatin1StringView("-journal")) && !isWholeDatabase(path))
            return false;
    }
    return true;
}

} // namespace

HelpCache::HelpCache(const HelpBook &book)
{
    const QDir books(folderOfBook(book));
    const QString version = folderName(book.version);
    folder_ = books.filePath(version + u'-' + folderName(book.language) + u'-' + fingerprint(book.file));
    QDir().mkpath(folder_);
    removeOtherVersions(books, version);
    if (!isWhole(folder_))
        clear();
}

HelpCache::HelpCache()
    : temporary_(std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/lumaroo-help-XXXXXX"))),
      folder_(temporary_->path())
{
}

bool HelpCache::isWritable() const
{
    const QFileInfo folder(folder_);
    return folder.isDir() && folder.isWritable();
}

void HelpCache::clear()
{
    QDir(folder_).removeRecursively();
    QDir().mkpath(folder_);
}
