#include "platform/foundation/crashlogs/linux/CrashHandler.h"

#include "platform/foundation/crashlogs/linux/CrashRecord.h"
#include "platform/foundation/crashlogs/linux/SignalNames.h"

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <exception>
#include <memory>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr size_t stackSize = size_t(256) * 1024;
constexpr size_t guardSize = size_t(64) * 1024; // whole pages on every machine

CrashLogFacts programFacts;
pid_t program = 0;
std::terminate_handler previousTerminate = nullptr;
std::array<char, 2048> plugIns = {};
size_t plugInsLength = 0;
std::array<char, 1024> exceptionText = {};

std::atomic<pid_t> crashedThread = 0;
Crash crash = {};

pid_t thisThread()
{
    return pid_t(::syscall(SYS_gettid));
}

/// The process ends here, whichever thread it is.
void letDefaultHappen(int signal)
{
    struct sigaction asDefault = {};
    asDefault.sa_handler = SIG_DFL;
    for (const int crashSignal : crashSignals)
        ::sigaction(crashSignal, &asDefault, nullptr);
    sigset_t set;
    ::sigemptyset(&set);
    ::sigaddset(&set, signal);
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    ::syscall(SYS_tgkill, ::getpid(), thisThread(), signal);
}

void giveUp(int)
{
    letDefaultHappen(crash.signal);
}

/// From now on the record may be held up: by the disk, or by what is broken.
void limitTime()
{
    struct sigaction end = {};
    end.sa_handler = giveUp;
    ::sigaction(SIGALRM, &end, nullptr);
    sigset_t set;
    ::sigemptyset(&set);
    ::sigaddset(&set, SIGALRM);
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    ::alarm(programFacts.mostSeconds);
}

void rememberCrash(const siginfo_t &information, const void *context)
{
    // What is written shall not end the process in another way when there is no room for it.
    struct sigaction ignored = {};
    ignored.sa_handler = SIG_IGN;
    ::sigaction(SIGXFSZ, &ignored, nullptr);
    crash.signal = information.si_signo;
    crash.information = information;
    crash.context = static_cast<const ucontext_t *>(context);
    ::clock_gettime(CLOCK_REALTIME, &crash.time);
    crash.thread = thisThread();
    crash.exception = exceptionText.data();
    crash.plugIns = plugIns.data();
    limitTime();
}

void handleCrash(int signal, siginfo_t *information, void *context)
{
    if (::getpid() != program) {
        letDefaultHappen(signal); // a copy of us that is about to become another program
        return;
    }
    pid_t nobody = 0;
    if (crashedThread.compare_exchange_strong(nobody, thisThread()))
        rememberCrash(*information, context);
    // Another thread's crash: the first one ends the process, or its time does. Our own, within the writing: it goes on
    // after that.
    while (crashedThread != thisThread())
        ::pause();
    while (writeNextSection(programFacts, crash)) { }
    letDefaultHappen(crash.signal);
}

void appendToExceptionText(const char *part)
{
    constexpr auto isInsideCharacter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xc0) == 0x80; };
    const size_t begin = std::strlen(exceptionText.data());
    size_t length = ::strnlen(part, exceptionText.size() - 1 - begin);
    while (length > 0 && isInsideCharacter(part[length]))
        --length;
    std::memcpy(exceptionText.data() + begin, part, length);
}

void rememberException()
{
    const std::type_info *type = abi::__cxa_current_exception_type();
    if (!type)
        return;
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type->name(), nullptr, nullptr, &status), &std::free);
    appendToExceptionText(name ? name.get() : type->name());
    try {
        throw;
    } catch (const std::exception &exception) {
        appendToExceptionText(": ");
        appendToExceptionText(exception.what());
    } catch (...) { // nothing more to say of it
    }
}

[[noreturn]] void handleUncaughtException()
{
    rememberException();
    previousTerminate();
    std::abort();
}

/// A stack for the handlers, since the thread's own may be what has overflowed. Its pages cost nothing before they are
/// used. Where something else has given the thread one, that stays.
void makeStack()
{
    stack_t present = {};
    if (::sigaltstack(nullptr, &present) != 0 || !(present.ss_flags & SS_DISABLE))
        return;
    void *memory =
        ::mmap(nullptr, guardSize + stackSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        return;
    stack_t stack = {};
    stack.ss_sp = static_cast<char *>(memory) + guardSize;
    stack.ss_size = stackSize;
    if (::mprotect(stack.ss_sp, stackSize, PROT_READ | PROT_WRITE) == 0)
        ::sigaltstack(&stack, nullptr);
}

void handleSignals()
{
    struct sigaction ours = {};
    ours.sa_sigaction = handleCrash;
    // Not held up within the handler: a crash there has to come to us as well.
    ours.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
    for (const int signal : crashSignals) {
        struct sigaction present = {};
        if (::sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_DFL)
            ::sigaction(signal, &ours, nullptr);
    }
}

/// Null where it is not named.
char *placeOfPlugIn(const char *identifier, size_t length)
{
    char *end = plugIns.data() + plugInsLength;
    for (char *name = plugIns.data(); name != end; name += std::strlen(name) + 1) {
        if (std::strlen(name) == length && std::memcmp(name, identifier, length) == 0)
            return name;
    }
    return nullptr;
}

} // namespace

void installCrashHandler(const CrashLogFacts &facts)
{
    programFacts = facts;
    program = ::getpid();
    prepareCrashRecord();
    makeStack();
    handleSignals();
    previousTerminate = std::set_terminate(handleUncaughtException);
}

bool addPlugInToCrashLog(const char *identifier, size_t length)
{
    // Two zeros end the list.
    if (length == 0 || length + 2 > plugIns.size() - plugInsLength || placeOfPlugIn(identifier, length))
        return false;
    std::memcpy(plugIns.data() + plugInsLength, identifier, length);
    plugInsLength += length + 1;
    return true;
}

void removePlugInFromCrashLog(const char *identifier, size_t length)
{
    char *place = placeOfPlugIn(identifier, length);
    if (!place)
        return;
    char *next = place + length + 1;
    char *end = plugIns.data() + plugInsLength;
    std::memmove(place, next, size_t(end - next));
    std::memset(end - length - 1, 0, length + 1);
    plugInsLength -= length + 1;
}
