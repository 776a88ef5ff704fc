// Part of tests, and of programs that are built with sanitizers.

#include <QtGlobal>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

bool isBusThread(const std::filesystem::directory_entry &task)
{
    std::ifstream file(task.path() / "comm");
    std::string name;
    std::getline(file, name);
    return name == "QDBusConnection";
}

bool hasBusThread()
{
    std::error_code error;
    const std::filesystem::directory_iterator tasks("/proc/self/task", error);
    return std::any_of(begin(tasks), end(tasks), isBusThread);
}

/// The first object of a program, so the last one to go. The bus library has waited for its thread by then, but that
/// may still be on its way out; the leak checker, which comes next, would take what it holds for leaked.
struct EndOfBusThread
{
    ~EndOfBusThread()
    {
        constexpr int mostRounds = 1000;
        constexpr useconds_t round = 1000; // microseconds
        for (int i = 0; i < mostRounds && hasBusThread(); ++i)
            ::usleep(round);
    }
};

[[gnu::init_priority(101)]] const EndOfBusThread endOfBusThread;

} // namespace

/// By its name a test's linker takes this file in.
extern "C" Q_DECL_EXPORT void waitForEndOfBusThread() { }
