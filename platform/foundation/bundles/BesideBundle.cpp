#include "platform/foundation/bundles/BesideBundle.h"

#include <QDirIterator>
#include <QFileInfo>

QString pathBesideBundle(const QString &bundlePath, const QString &what)
{
    const QFileInfo bundle(bundlePath);
    return bundle.path() + QStringLiteral("/.%1.%2").arg(bundle.fileName(), what);
}

bool isAnythingBesideBundle(const QString &bundlePath)
{
    const QString start = QFileInfo(pathBesideBundle(bundlePath, {})).fileName();
    QDirIterator entries(QFileInfo(bundlePath).path(), QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (entries.fileName().startsWith(start))
            return true;
    }
    return false;
}
