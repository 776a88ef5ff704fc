// What the sanitizers must know of the libraries under us.

#include <QtGlobal>

// Memory that these libraries keep for the life of a process, reachable only through pointers that the leak checker
// does not see.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions();
const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\nleak:libdbus-1\nleak:libxkbcommon\nleak:libX11\nleak:libglib\nleak:libQt6XcbQpa\nleak:"
           "libQt6DBus\nleak:libGLX\n";
}
