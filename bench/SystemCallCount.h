#pragma once

#include <csignal>
#include <functional>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

/// How many system calls `work` makes, in a fork of this process that has everything as it is here.
inline int systemCallsOf(const std::function<void()> &work)
{
    const pid_t process = ::fork();
    if (process == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        work();
        ::_exit(0);
    }
    constexpr int callStop = SIGTRAP | 0x80;
    int status = 0;
    int stops = 0;
    ::waitpid(process, &status, 0);
    ::ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    while (::ptrace(PTRACE_SYSCALL, process, nullptr, nullptr) == 0 && ::waitpid(process, &status, 0) == process
        && WIFSTOPPED(status))
        stops += WSTOPSIG(status) == callStop;
    // Each stops twice, but for the last one, which ends the process, and the return from the first.
    return (stops - 1) / 2;
}
