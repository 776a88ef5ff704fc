#include "platform/foundation/bundles/NSFileManager.h"

#include <QDir>
#include <QFileInfo>

QString displayNameAtPath(const QString &path)
{
    return QFileInfo(QDir::cleanPath(path)).fileName();
}

QString stringByDeletingPathExtension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.left(dot) : name;
}
