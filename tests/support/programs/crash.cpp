// A program that crashes as it is told, with the crash handler installed: crash HOME FORM WAY [PLUG-IN...]
// FORM is "one" file, or a "file" for each. It is built without sanitizers, which have handlers of their own.

#include "platform/foundation/crashlogs/linux/CrashHandler.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <pthread.h>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void writeToNull()
{
    volatile int *volatile nowhere = nullptr;
    *nowhere = 1;
}

void callNull()
{
    void (*volatile nowhere)() = nullptr;
    nowhere();
}

/// Calls itself by a way that the compiler does not see.
int overflowStack(int depth)
{
    static int (*volatile again)(int) = overflowStack;
    volatile char room[4096];
    room[0] = char(depth);
    return again(depth + 1) + room[0];
}

struct NoException
{
};

void throwLines()
{
    throw std::runtime_error("two\nlines\n\n**********\n\nand the end");
}

void throwPastNoexcept() noexcept
{
    throwLines();
}

void throwALongText()
{
    std::string text;
    for (int i = 0; i < 2000; ++i)
        text += "\u00e4"; // two bytes
    throw std::runtime_error(text);
}

void *crashInThread(void *)
{
    writeToNull();
    return nullptr;
}

void crashInAnotherThread()
{
    pthread_t thread = {};
    pthread_create(&thread, nullptr, crashInThread, nullptr);
    pthread_join(thread, nullptr);
}

/// All at once.
void crashInManyThreads()
{
    constexpr int count = 16;
    static pthread_barrier_t barrier;
    pthread_barrier_init(&barrier, nullptr, count);
    pthread_t thread = {};
    for (int i = 0; i < count; ++i)
        pthread_create(
            &thread, nullptr,
            [](void *) -> void * {
                pthread_barrier_wait(&barrier);
                return crashInThread(nullptr);
            },
            nullptr);
    pthread_join(thread, nullptr);
}

void readBehindTheEndOfAFile()
{
    FILE *file = std::tmpfile();
    const auto *memory =
        static_cast<volatile const char *>(mmap(nullptr, 4096, PROT_READ, MAP_PRIVATE, fileno(file), 0));
    std::printf("%d", *memory);
}

/// The stack leads nowhere: whoever goes up it crashes as well.
void breakStack()
{
#if defined(__x86_64__)
    __asm__ volatile("xor %%esp, %%esp\n\txor %%ebp, %%ebp\n\tud2" ::: "memory");
#elif defined(__aarch64__)
    __asm__ volatile("mov sp, xzr\n\tmov x29, xzr\n\tudf #0" ::: "memory");
#endif
}

/// The same, by the signal that the second crash has as well.
void breakStackAndPush()
{
#if defined(__x86_64__)
    __asm__ volatile("xor %%esp, %%esp\n\txor %%ebp, %%ebp\n\tpush %%rax" ::: "memory");
#elif defined(__aarch64__)
    __asm__ volatile("mov sp, xzr\n\tmov x29, xzr\n\tstr x0, [sp, #-16]!" ::: "memory");
#endif
}

void crashInAChild()
{
    const pid_t child = fork();
    if (child == 0)
        writeToNull();
    int status = 0;
    waitpid(child, &status, 0);
    std::exit(WIFSIGNALED(status) ? WTERMSIG(status) : 0);
}

void crashWithoutRoomForFiles()
{
    const rlimit none = {0, 0};
    setrlimit(RLIMIT_FSIZE, &none);
    writeToNull();
}

const std::map<std::string, void (*)()> ways{
    {"null", writeToNull},
    {"call-null", callNull},
    {"abort", std::abort},
    {"overflow", [] { overflowStack(0); }},
    {"exception", [] { throw std::out_of_range("the text"); }},
    {"no-exception", [] { throw NoException(); }},
    {"number", [] { throw 7; }},
    {"noexcept", throwPastNoexcept},
    {"long-exception", throwALongText},
    {"terminate", [] { std::terminate(); }},
    {"illegal", [] { __builtin_trap(); }},
    {"division", [] { std::raise(SIGFPE); }},
    {"end-of-file", readBehindTheEndOfAFile},
    {"thread", crashInAnotherThread},
    {"threads", crashInManyThreads},
    {"stack", breakStack},
    {"stack-push", breakStackAndPush},
    {"child", crashInAChild},
    {"file-size", crashWithoutRoomForFiles},
    {"other-handler", [] { std::raise(SIGILL); }},
};

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount < 4 || !ways.contains(arguments[3]))
        return 2;
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    if (std::strcmp(arguments[3], "other-handler") == 0)
        std::signal(SIGILL, [](int) { _exit(5); });
    installCrashHandler({.program = "crash",
        .identifier = "com.example.crash",
        .version = "1.0 (7)",
        .home = arguments[1],
        .folder = "Library/Logs/Here/",
        .hasFileForEach = std::strcmp(arguments[2], "file") == 0});
    for (int i = 4; i < argumentCount; ++i)
        addPlugInToCrashLog(arguments[i], std::strlen(arguments[i]));
    ways.at(arguments[3])();
    return 1;
}
