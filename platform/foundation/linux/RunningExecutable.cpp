#include "platform/foundation/linux/RunningExecutable.h"

#include "platform/foundation/linux/ProcessFolders.h"

#include <QFile>
#include <unistd.h>

QString runningExecutablePath()
{
    // Where it stood at first: a program that is replaced later may be moved out of the way for that.
    static const QString path = QFile::decodeName(executableOf(getpid()));
    return path;
}
