// What the sanitizers must know of the libraries that the agent draws texts with.

#include <QtGlobal>

// Memory that these keep for the life of a process, reachable only through pointers that the leak checker does not see.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions();
const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\nleak:libpango\nleak:libglib\n";
}
