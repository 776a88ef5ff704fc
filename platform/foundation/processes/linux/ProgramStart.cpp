#include "platform/foundation/processes/linux/ProgramStart.h"

#include "platform/foundation/system/SystemCalls.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

QByteArray nameOf(const QByteArray &entry)
{
    return entry.left(entry.indexOf('='));
}

QByteArrayList environmentOf(const ProgramStart &start)
{
    QByteArrayList leftOut = start.hiddenVariables;
    for (const QByteArray &entry : start.environment)
        leftOut += nameOf(entry);
    QByteArrayList environment;
    for (char **old = environ; old && *old; ++old) {
        if (!leftOut.contains(nameOf(*old)))
            environment += *old;
    }
    return environment + start.environment;
}

std::vector<char *> pointersTo(QByteArrayList &texts)
{
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The same open file under a number that no standard stream has; closed on exec.
FileDescriptor aboveStandardStreams(int descriptor)
{
    return FileDescriptor(::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

/// Everything that the new process needs, made before there is one: between fork and exec nothing may be allocated.
struct PreparedStart
{
    explicit PreparedStart(const ProgramStart &start)
        : argumentTexts(QByteArrayList{start.executable} + start.arguments), environmentTexts(environmentOf(start)),
          arguments(pointersTo(argumentTexts)), environment(pointersTo(environmentTexts)),
          nothing(aboveStandardStreams(FileDescriptor::opened("/dev/null", O_RDWR).get()))
    {
        if (start.standardInput >= 0)
            standardInput = aboveStandardStreams(start.standardInput);
    }

    QByteArrayList argumentTexts, environmentTexts;
    std::vector<char *> arguments, environment;
    FileDescriptor nothing, standardInput;
};

/// What the new process tells before it becomes the program; once it has, the pipe's end tells that.
struct Report
{
    pid_t process;
    int error;
};

void tell(int pipe, const Report &report)
{
    // Smaller than PIPE_BUF: it arrives whole or not at all.
    [[maybe_unused]] const ssize_t written = uninterrupted([&] { return ::write(pipe, &report, sizeof report); });
}

/// Blocks every signal for its lifetime: what reaches the new process before it is the program must not run our
/// handlers in it.
class BlockedSignals
{
public:
    BlockedSignals()
    {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    ~BlockedSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    BlockedSignals(const BlockedSignals &) = delete;
    BlockedSignals &operator=(const BlockedSignals &) = delete;

private:
    sigset_t before_;
};

void resetSignals()
{
    struct sigaction asDefault = {};
    asDefault.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
        ::sigaction(signal, &asDefault, nullptr);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

bool closeOthersOnExec()
{
    return ::close_range(STDERR_FILENO + 1, UINT_MAX, CLOSE_RANGE_CLOEXEC) == 0;
}

bool connectStandardStreams(int standardInput, int nothing)
{
    const int input = standardInput >= 0 ? standardInput : nothing;
    return ::dup2(input, STDIN_FILENO) >= 0 && ::dup2(nothing, STDOUT_FILENO) >= 0
        && ::dup2(nothing, STDERR_FILENO) >= 0;
}

[[noreturn]] void becomeProgram(const PreparedStart &start, int pipe)
{
    tell(pipe, {::getpid(), 0});
    if (::setsid() >= 0 && connectStandardStreams(start.standardInput.get(), start.nothing.get()) && ::chdir("/") == 0
        && closeOthersOnExec()) {
        resetSignals();
        ::execve(start.arguments.front(), start.arguments.data(), start.environment.data());
    }
    tell(pipe, {0, errno});
    ::_exit(127);
}

/// The process in between ends at once, so that the program is the system's child and not ours.
[[noreturn]] void leaveProgramToTheSystem(const PreparedStart &start, int pipe)
{
    const pid_t process = ::_Fork(); // runs no handlers of other threads' libraries
    if (process == 0)
        becomeProgram(start, pipe);
    if (process < 0)
        tell(pipe, {0, errno});
    ::_exit(0);
}

StartedProgram hear(int pipe)
{
    StartedProgram started;
    Report report = {};
    while (uninterrupted([&] { return ::read(pipe, &report, sizeof report); }) == ssize_t(sizeof report)) {
        started.process = report.process != 0 ? report.process : started.process;
        started.error = report.error;
    }
    if (started.process == 0 && started.error == 0)
        started.error = ECHILD; // something ended the process in between
    return started;
}

} // namespace

StartedProgram startProgram(const ProgramStart &start)
{
    const PreparedStart prepared(start);
    std::array<int, 2> ends;
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return {0, errno};
    FileDescriptor reading(ends[0]), lowWriting(ends[1]);
    FileDescriptor writing = aboveStandardStreams(lowWriting.get());
    if (!writing || !prepared.nothing)
        return {0, errno};
    const BlockedSignals blocked;
    const pid_t between = ::fork();
    if (between < 0)
        return {0, errno};
    if (between == 0)
        leaveProgramToTheSystem(prepared, writing.get());
    lowWriting.close();
    writing.close();
    const StartedProgram started = hear(reading.get());
    uninterrupted([&] { return ::waitpid(between, nullptr, 0); });
    return started;
}
