#pragma once

#include "MakerCommand.h"

#include "updater/core/AppcastItem.h"

#include <QList>
#include <QMap>

/// What a maker says of the versions in a folder.
struct AppcastOrder
{
    QString folder;
    QUrl address; ///< at which the folder's files are to be found
    QMap<QString, QString> channels; ///< of versions
    QMap<QString, QString> criticalBelow; ///< of versions that are critical; an empty text: for everybody
    QString minimumSystemVersion;
};

/// The folder's archives (*.tar.gz, *.tar.xz) as items of a feed, signed; each is listed as the updater would list it,
/// and its bundle's own Info dictionary says which version it is. A file of the same name with .html is its release
/// notes. Throws MakerFailure: for an archive that nobody could install, and for two of one version.
QList<AppcastItem> itemsOfFolder(const AppcastOrder &order, const SigningKey &key);
