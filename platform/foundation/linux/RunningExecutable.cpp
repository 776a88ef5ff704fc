#include "platform/foundation/linux/RunningExecutable.h"

#include "platform/foundation/linux/ProcessFolders.h"

#include <QFile>
#include <unistd.h>

QString runningExecutablePath()
{
    return QFile::decodeName(executableOf(getpid()));
}
