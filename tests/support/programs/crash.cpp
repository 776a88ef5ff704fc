// A program that crashes as it is told, with the crash handler installed: crash HOME FORM WAY [PLUG-IN...]
// FORM is "one" file, or a "file" for each. A WAY that begins with "in-thread-" is gone in another thread than the main
// one; a PLUG-IN that begins with "-" is taken back. It is built without sanitizers, which have handlers of their own.

#include "platform/foundation/crashlogs/linux/CrashHandler.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
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

const char *memoryBehindTheEndOfAFile()
{
    FILE *file = std::tmpfile();
    return static_cast<const char *>(mmap(nullptr, 4096, PROT_READ, MAP_PRIVATE, fileno(file), 0));
}

void readBehindTheEndOfAFile()
{
    std::printf("%d", *static_cast<volatile const char *>(memoryBehindTheEndOfAFile()));
}

/// By the processor, where it knows that as a failure.
void divideByZero()
{
#if defined(__x86_64__)
    __asm__ volatile("xor %%ecx, %%ecx\n\tmov $1, %%eax\n\tcltd\n\tidiv %%ecx" ::: "eax", "ecx", "edx");
#endif
}

/// The loader tells of each function that it finds, where it is asked to; the last one is this.
void crashAfterLookingUpAFunction()
{
    dlsym(RTLD_DEFAULT, "getdomainname");
    writeToNull();
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
    {"division-by-zero", divideByZero},
    {"look-up", crashAfterLookingUpAFunction},
    {"end-of-file", readBehindTheEndOfAFile},
    {"thread", crashInAnotherThread},
    {"threads", crashInManyThreads},
    {"held-up", crashInManyThreads},
    {"stack", breakStack},
    {"stack-push", breakStackAndPush},
    {"child", crashInAChild},
    {"file-size", crashWithoutRoomForFiles},
    {"other-handler", [] { std::raise(SIGILL); }},
};

void crashIn(void (*way)(), bool inThread)
{
    if (!inThread) {
        way();
        return;
    }
    static void (*wayOfThread)() = way;
    pthread_t thread = {};
    pthread_create(
        &thread, nullptr,
        [](void *) -> void * {
            wayOfThread();
            return nullptr;
        },
        nullptr);
    pthread_join(thread, nullptr);
}

/// Whoever reads the identifier for the record stays there.
const char *identifierFor(const std::string &way)
{
    if (way != "held-up")
        return "com.example.crash";
    std::signal(SIGBUS, [](int) {
        for (;;)
            pause();
    });
    return memoryBehindTheEndOfAFile();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const std::string inThread = "in-thread-";
    std::string way = argumentCount < 4 ? "" : arguments[3];
    const bool isInThread = way.compare(0, inThread.size(), inThread) == 0;
    if (isInThread)
        way.erase(0, inThread.size());
    if (ways.count(way) == 0)
        return 2;
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    if (way == "other-handler")
        std::signal(SIGILL, [](int) { _exit(5); });
    installCrashHandler({.program = "crash",
        .identifier = identifierFor(way),
        .version = "1.0 (7)",
        .home = arguments[1],
        .folder = "Library/Logs/Here/",
        .hasFileForEach = std::strcmp(arguments[2], "file") == 0,
        .mostSeconds = way == "held-up" ? 1U : 60U});
    for (int i = 4; i < argumentCount; ++i) {
        const char *name = arguments[i];
        *name == '-' ? removePlugInFromCrashLog(name + 1, std::strlen(name + 1))
                     : void(addPlugInToCrashLog(name, std::strlen(name)));
    }
    crashIn(ways.at(way), isInThread);
    return 1;
}
