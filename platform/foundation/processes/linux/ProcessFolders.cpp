#include "platform/foundation/processes/linux/ProcessFolders.h"

#include "platform/foundation/system/RunningExecutable.h"
#include "platform/foundation/system/SystemCalls.h"

#include <QList>
#include <array>
#include <charconv>
#include <climits>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace {

constexpr qsizetype largestEnvironment = 4 * 1024 * 1024;
constexpr int mostReadings = 200;
constexpr useconds_t betweenReadings = 500; // microseconds

pid_t processNamed(const char *folder)
{
    pid_t process = 0;
    const char *end = folder + std::strlen(folder);
    const auto [stop, error] = std::from_chars(folder, end, process);
    return error == std::errc() && stop == end ? process : 0;
}

bool belongsTo(int folders, const char *folder, uid_t user)
{
    struct stat status;
    return ::fstatat(folders, folder, &status, 0) == 0 && status.st_uid == user;
}

QByteArray pathIn(pid_t process, const char *file)
{
    return "/proc/" + QByteArray::number(process) + '/' + file;
}

QByteArray contentOf(const QByteArray &path)
{
    const FileDescriptor file = FileDescriptor::opened(path, O_RDONLY);
    QByteArray content;
    std::array<char, 4096> part;
    while (file && content.size() < largestEnvironment) {
        const ssize_t size = uninterrupted([&] { return ::read(file.get(), part.data(), part.size()); });
        if (size <= 0)
            break;
        content.append(part.data(), size);
    }
    return content;
}

/// The system shows a program's file a moment before the arguments and the environment that it was started with.
bool isJustStarting(pid_t process)
{
    return contentOf(pathIn(process, "cmdline")).isEmpty() && !executableOf(process).isEmpty();
}

QByteArray environmentOf(pid_t process)
{
    QByteArray environment = contentOf(pathIn(process, "environ"));
    for (int reading = 1; environment.isEmpty() && reading < mostReadings && isJustStarting(process); ++reading) {
        ::usleep(betweenReadings);
        environment = contentOf(pathIn(process, "environ"));
    }
    return environment;
}

} // namespace

std::vector<pid_t> processesOfThisUser()
{
    std::vector<pid_t> processes;
    const std::unique_ptr<DIR, int (*)(DIR *)> folders(::opendir("/proc"), ::closedir);
    if (!folders)
        return processes;
    const uid_t user = ::geteuid();
    while (const dirent *folder = ::readdir(folders.get())) {
        const pid_t process = processNamed(folder->d_name);
        if (process != 0 && belongsTo(::dirfd(folders.get()), folder->d_name, user))
            processes.push_back(process);
    }
    return processes;
}

QByteArray environmentVariableOf(pid_t process, const QByteArray &name)
{
    const QByteArray start = name + '=';
    for (const QByteArray &entry : environmentOf(process).split('\0')) {
        if (entry.startsWith(start))
            return entry.mid(start.size());
    }
    return {};
}
