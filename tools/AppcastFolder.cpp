#include "AppcastFolder.h"

#include "platform/foundation/propertylists/PropertyList.h"
#include "updater/core/UpdateArchive.h"
#include "updater/core/Versions.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

const QStringList archivePatterns{QStringLiteral("*.tar.gz"), QStringLiteral("*.tar.xz")};

QUrl addressOf(const AppcastOrder &order, const QString &fileName)
{
    QUrl address = order.address;
    address.setPath(order.address.path() + fileName);
    return address;
}

QString notesOf(const QFileInfo &archive)
{
    const QString name = archive.fileName();
    const QString notes = name.left(name.lastIndexOf(QStringLiteral(".tar."))) + QStringLiteral(".html");
    return archive.dir().exists(notes) ? notes : QString();
}

QVariantMap infoDictionaryIn(const QString &archive, const QByteArray &bytes)
{
    const ArchiveListing listing = listUpdateArchive(bytes);
    if (!listing)
        throw MakerFailure(QStringLiteral("%1 could not be installed: %2").arg(archive, listing.error));
    const QString path = listing.bundle + QStringLiteral("/Contents/Info.plist");
    const QVariantMap info = readPropertyList(fileOfUpdateArchive(bytes, path)).value.toMap();
    if (!isBundleVersion(info.value(QStringLiteral("CFBundleVersion")).toString()))
        throw MakerFailure(QStringLiteral("%1 holds no bundle with a version").arg(archive));
    return info;
}

AppcastItem itemOf(const QFileInfo &archive, const AppcastOrder &order, const SigningKey &key)
{
    const QByteArray bytes = readArchive(archive.filePath());
    const QVariantMap info = infoDictionaryIn(archive.fileName(), bytes);
    AppcastItem item;
    item.version = info.value(QStringLiteral("CFBundleVersion")).toString();
    item.displayVersion = info.value(QStringLiteral("CFBundleShortVersionString")).toString();
    item.title =
        QStringLiteral("%1 %2").arg(info.value(QStringLiteral("CFBundleName")).toString(), item.displayVersion);
    item.published = archive.lastModified();
    item.minimumSystemVersion = order.minimumSystemVersion;
    item.minimumPlatformVersion = info.value(QStringLiteral("LMPlatformVersion")).toInt();
    item.channel = order.channels.value(item.version);
    item.isCritical = order.criticalBelow.contains(item.version);
    item.criticalBelow = order.criticalBelow.value(item.version);
    const QString notes = notesOf(archive);
    item.releaseNotes = notes.isEmpty() ? QUrl() : addressOf(order, notes);
    item.archive = addressOf(order, archive.fileName());
    item.length = bytes.size();
    item.signature = key.signatureOf(bytes);
    return item;
}

} // namespace

QList<AppcastItem> itemsOfFolder(const AppcastOrder &order, const SigningKey &key)
{
    QList<AppcastItem> items;
    QSet<QString> versions;
    for (const QFileInfo &archive : QDir(order.folder).entryInfoList(archivePatterns, QDir::Files)) {
        items += itemOf(archive, order, key);
        if (versions.contains(items.last().version))
            throw MakerFailure(QStringLiteral("%1: there are two archives of version %2")
                                   .arg(archive.fileName(), items.last().version));
        versions += items.last().version;
    }
    if (items.isEmpty())
        throw MakerFailure(QStringLiteral("%1 holds no archive").arg(order.folder));
    return items;
}
