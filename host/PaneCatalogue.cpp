#include "host/PaneCatalogue.h"

#include "host/IconFile.h"
#include "host/LetterTile.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/system/UserFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

QString realPath(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : canonical;
}

QStringList bundlesIn(const QString &folder)
{
    QStringList bundles;
    const QStringList names =
        QDir(folder).entryList({QStringLiteral("*.prefPane")}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names)
        bundles += realPath(folder + u'/' + name);
    return bundles;
}

QString identifierOnDisk(const QString &bundlePath)
{
    return NSBundle::infoDictionaryOnDisk(bundlePath).value(QStringLiteral("CFBundleIdentifier")).toString();
}

QString firstText(const NSBundle *bundle, const QStringList &keys)
{
    for (const QString &key : keys) {
        const QString text = bundle->objectForInfoDictionaryKey(key).toString();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

QString iconFile(const NSBundle *bundle)
{
    const QString name = firstText(bundle, {QStringLiteral("NSPrefPaneIconFile"), QStringLiteral("CFBundleIconFile")});
    return name.isEmpty() ? QString() : bundle->pathForResourceOfType(name, QString());
}

bool anyContains(const QStringList &texts, const QString &word)
{
    return std::any_of(texts.cbegin(), texts.cend(),
        [&word](const QString &text) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

QStringList paneFolders()
{
    const QString beside = QFileInfo(NSBundle::mainBundle()->bundlePath()).path();
    return {userDataFolder() + QStringLiteral("/PreferencePanes"), beside + QStringLiteral("/PreferencePanes"), beside};
}

QStringList paneBundles(const QStringList &folders, const QString &request)
{
    QStringList bundles;
    for (const QString &folder : folders)
        bundles += bundlesIn(folder);
    if (request.contains(u'/'))
        bundles += realPath(request);
    bundles.removeDuplicates();
    return bundles;
}

QList<InstalledPane> installedPanes(const QStringList &folders)
{
    QList<InstalledPane> panes;
    QSet<QString> seen;
    for (const QString &folder : folders) {
        for (const QString &path : bundlesIn(folder)) {
            // The identifier is read past NSBundle, which would remember a shadowed bundle as one in use.
            const QString identifier = identifierOnDisk(path);
            const QString key = identifier.isEmpty() ? path : identifier;
            if (seen.contains(key))
                continue;
            seen.insert(key);
            panes += describePane(path);
        }
    }
    std::sort(panes.begin(), panes.end(), [](const InstalledPane &left, const InstalledPane &right) {
        return QString::localeAwareCompare(left.name, right.name) < 0;
    });
    return panes;
}

InstalledPane describePane(const QString &bundlePath)
{
    InstalledPane pane;
    pane.path = realPath(bundlePath);
    pane.name = QFileInfo(pane.path).completeBaseName();
    // A damaged bundle is kept away from NSBundle, which would hold on to its empty dictionary after a repair.
    const NSBundle *bundle = identifierOnDisk(pane.path).isEmpty() ? nullptr : NSBundle::bundleWithPath(pane.path);
    if (!bundle)
        return pane;
    pane.identifier = bundle->bundleIdentifier();
    const QString name = firstText(bundle, {QStringLiteral("NSPrefPaneIconLabel"), QStringLiteral("CFBundleName")});
    if (!name.isEmpty())
        pane.name = name;
    pane.iconFile = iconFile(bundle);
    pane.keywords = paneKeywords(bundle->objectForInfoDictionaryKey(QStringLiteral("NSPrefPaneSearchKeywords")));
    return pane;
}

QString paneForRequest(const QString &request, const QList<InstalledPane> &panes)
{
    for (const InstalledPane &pane : panes) {
        if (!pane.identifier.isEmpty() && pane.identifier == request)
            return pane.path;
    }
    return request.contains(u'/') ? realPath(request) : QString();
}

bool paneMatches(const InstalledPane &pane, const QString &search)
{
    const QStringList texts = QStringList(pane.name) + pane.keywords;
    const QStringList words = search.simplified().split(u' ', Qt::SkipEmptyParts);
    return std::all_of(
        words.cbegin(), words.cend(), [&texts](const QString &word) { return anyContains(texts, word); });
}

QStringList paneKeywords(const QVariant &value)
{
    const QStringList stated =
        value.typeId() == QMetaType::QString ? value.toString().split(u',') : value.toStringList();
    QStringList keywords;
    for (const QString &keyword : stated) {
        if (!keyword.trimmed().isEmpty())
            keywords += keyword.trimmed();
    }
    return keywords;
}

QIcon paneIcon(const InstalledPane &pane)
{
    const QIcon icon = iconFromFile(pane.iconFile);
    // An icon of an unreadable file is not null, it merely has no picture to give.
    return icon.pixmap(64).isNull() ? letterTile(pane.name) : icon;
}
