#include "updater/core/UpdatePermission.h"

#include "updater/core/linux/Permission.h"

#include <QFileInfo>

UpdateProblem problemOfUpdating(const QString &bundlePath)
{
    return problemOfUpdating(bundlePath, effectiveUser());
}

UpdateProblem problemOfUpdating(const QString &bundlePath, unsigned user)
{
    if (user == superuser)
        return {UpdateProblem::Kind::Superuser, QStringLiteral("updates are not installed as root")};
    const QString path = QFileInfo(bundlePath).canonicalFilePath();
    const bool isWritable = !path.isEmpty() && mayWriteFolder(path) && mayWriteFolder(QFileInfo(path).path());
    return isWritable ? UpdateProblem{}
                      : UpdateProblem{UpdateProblem::Kind::NotWritable,
                          QStringLiteral("%1 is not this user's to change").arg(bundlePath)};
}
