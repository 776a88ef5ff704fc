#include "platform/foundation/crashlogs/linux/SignalNames.h"

namespace {

struct Name
{
    int signal;
    const char *name;
};

constexpr Name names[] = {
    {SIGSEGV, "SIGSEGV"},
    {SIGBUS, "SIGBUS"},
    {SIGILL, "SIGILL"},
    {SIGFPE, "SIGFPE"},
    {SIGTRAP, "SIGTRAP"},
    {SIGABRT, "SIGABRT"},
    {SIGSYS, "SIGSYS"},
};

struct Reason
{
    int signal;
    int code;
    const char *text;
};

constexpr int byFilter = 1; // SYS_SECCOMP, which the C library does not name
constexpr Reason reasons[] = {
    {SIGSEGV, SEGV_MAPERR, "nothing is mapped at the address"},
    {SIGSEGV, SEGV_ACCERR, "no permission at the address"},
    {SIGBUS, BUS_ADRALN, "the address is not aligned"},
    {SIGBUS, BUS_ADRERR, "nothing is behind the address"},
    {SIGBUS, BUS_OBJERR, "the memory has failed"},
    {SIGILL, ILL_ILLOPC, "illegal instruction"},
    {SIGILL, ILL_ILLOPN, "illegal operand"},
    {SIGILL, ILL_PRVOPC, "privileged instruction"},
    {SIGFPE, FPE_INTDIV, "division by zero"},
    {SIGFPE, FPE_INTOVF, "overflow"},
    {SIGTRAP, TRAP_BRKPT, "breakpoint"},
    {SIGSYS, byFilter, "a system call that is not allowed"},
    {SIGABRT, SI_TKILL, "the program gave up"},
};

bool isSent(const siginfo_t &information)
{
    return information.si_code <= 0;
}

} // namespace

const char *signalName(int signal)
{
    for (const Name &entry : names) {
        if (entry.signal == signal)
            return entry.name;
    }
    return "signal";
}

const char *signalReason(const siginfo_t &information)
{
    for (const Reason &reason : reasons) {
        if (reason.signal == information.si_signo && reason.code == information.si_code)
            return reason.text;
    }
    return isSent(information) ? "sent by a program" : "no reason known";
}

bool hasFaultAddress(const siginfo_t &information)
{
    return !isSent(information) && (information.si_signo == SIGSEGV || information.si_signo == SIGBUS);
}
