#include "updater/core/linux/FolderThread.h"

#include "platform/foundation/system/SystemCalls.h"
#include "updater/core/linux/SystemProblem.h"

#include <QFile>
#include <fcntl.h>
#include <sched.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

QString enter(const QByteArray &folder)
{
    // The current folder is the process's until a thread asks for one of its own.
    if (::unshare(CLONE_FS) != 0)
        return systemProblem("unshare");
    const FileDescriptor opened = FileDescriptor::opened(folder, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (!opened || ::fchdir(opened.get()) != 0)
        return systemProblem("chdir");
    ::umask(0022);
    return {};
}

} // namespace

QString runInFolder(const QString &folder, const std::function<QString()> &work)
{
    QString answer;
    std::thread thread([&] {
        answer = enter(QFile::encodeName(folder));
        if (answer.isEmpty())
            answer = work();
    });
    thread.join();
    return answer;
}
