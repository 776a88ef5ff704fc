// What the sanitizers must know of the libraries under us.

#include <QtGlobal>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <unistd.h>

// Memory that these libraries keep for the life of a process, reachable only through pointers that the leak checker
// does not see.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions();
const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\nleak:libdbus-1\nleak:libxkbcommon\nleak:libX11\nleak:libglib\nleak:libQt6XcbQpa\nleak:"
           "libQt6DBus\nleak:libGLX\n";
}

namespace {

/// The last object of a program to go. A thread that has been waited for may still be about to end; the leak checker
/// then looks at it no more, and takes what it still holds for leaked.
struct EndOfThreads
{
    ~EndOfThreads()
    {
        constexpr int mostRounds = 1000;
        constexpr useconds_t round = 1000; // microseconds
        for (int i = 0; i < mostRounds && threads() > 1; ++i)
            ::usleep(round);
    }
    static std::ptrdiff_t threads()
    {
        std::error_code error;
        const std::filesystem::directory_iterator tasks("/proc/self/task", error);
        return std::distance(begin(tasks), end(tasks));
    }
};

const EndOfThreads endOfThreads;

} // namespace
