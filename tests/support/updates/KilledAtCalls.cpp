#include "KilledAtCalls.h"

#include <QtGlobal>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <set>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr long options =
    PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK;
constexpr int callStop = SIGTRAP | 0x80;

bool opensForWriting(const __ptrace_syscall_info &call)
{
    const bool isOpen = call.entry.nr == SYS_openat;
    return isOpen && (call.entry.args[2] & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0;
}

/// Whether a thread is about to make a call that changes files.
bool isAboutToChangeFiles(pid_t thread)
{
    static const std::set<quint64> changing{SYS_write, SYS_pwrite64, SYS_rename, SYS_renameat, SYS_renameat2, SYS_mkdir,
        SYS_mkdirat, SYS_unlink, SYS_unlinkat, SYS_rmdir, SYS_symlink, SYS_symlinkat, SYS_link, SYS_linkat,
        SYS_ftruncate, SYS_fchmod, SYS_fsync, SYS_fdatasync, SYS_syncfs};
    __ptrace_syscall_info call = {};
    if (::ptrace(PTRACE_GET_SYSCALL_INFO, thread, sizeof call, &call) <= 0 || call.op != PTRACE_SYSCALL_INFO_ENTRY)
        return false;
    return changing.contains(call.entry.nr) || opensForWriting(call);
}

pid_t startTraced(const std::function<void()> &work)
{
    const pid_t process = ::fork();
    if (process != 0)
        return process;
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    work();
    ::_exit(0);
}

/// The signal that a stopped thread is to receive when it goes on.
int signalToPassOn(int status)
{
    const int signal = WSTOPSIG(status);
    return signal == callStop || signal == SIGTRAP || signal == SIGSTOP ? 0 : signal;
}

/// Lets the process make `calls` such calls and kills it before the next; false where it came to its end.
bool killedAfter(pid_t process, int calls)
{
    int status = 0;
    ::waitpid(process, &status, 0);
    ::ptrace(PTRACE_SETOPTIONS, process, nullptr, options);
    ::ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
    for (;;) {
        const pid_t thread = ::waitpid(-1, &status, __WALL);
        if (thread < 0 && errno != EINTR)
            qFatal("nothing to wait for");
        if (thread == process && (WIFEXITED(status) || WIFSIGNALED(status)))
            return WIFSIGNALED(status);
        if (thread < 0 || !WIFSTOPPED(status))
            continue;
        if (WSTOPSIG(status) == callStop && isAboutToChangeFiles(thread) && calls-- == 0)
            ::kill(process, SIGKILL);
        ::ptrace(PTRACE_SYSCALL, thread, nullptr, signalToPassOn(status));
    }
}

} // namespace

int killAtEachCall(const std::function<void()> &work, const std::function<void()> &afterwards)
{
    int killings = 0;
    while (killedAfter(startTraced(work), killings)) {
        ++killings;
        afterwards();
    }
    return killings;
}
