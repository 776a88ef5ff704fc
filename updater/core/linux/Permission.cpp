#include "updater/core/linux/Permission.h"

#include <QFile>
#include <fcntl.h>
#include <unistd.h>

unsigned effectiveUser()
{
    return ::geteuid();
}

bool mayWriteFolder(const QString &folder)
{
    return ::faccessat(AT_FDCWD, QFile::encodeName(folder).constData(), R_OK | W_OK | X_OK, AT_EACCESS) == 0;
}
