#include "updater/core/UpdatePlaces.h"

#include "platform/foundation/bundles/BesideBundle.h"

#include <QDir>
#include <QFileInfo>

UpdatePlaces::UpdatePlaces(const QString &bundle) : bundle_(bundle), folder_(QFileInfo(bundle).path()) { }

QString UpdatePlaces::hidden(const QString &what) const
{
    return pathBesideBundle(bundle_, what);
}

QStringList UpdatePlaces::aside() const
{
    const QString start = QFileInfo(asideStart()).fileName();
    QStringList found;
    for (const QFileInfo &entry : QDir(folder_).entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (entry.fileName().startsWith(start) && !entry.isSymLink())
            found += entry.filePath();
    }
    return found;
}
