#include "platform/foundation/system/LibraryBeside.h"

#include <QFile>
#include <QFileInfo>
#include <dlfcn.h>
#include <unistd.h>

namespace {

QString loadingError()
{
    const char *error = ::dlerror();
    return QString::fromLocal8Bit(error ? error : "nothing there");
}

/// Its bare name would do, but a sanitizer's loader does not search there.
QByteArray pathBeside(const char *library)
{
    Dl_info own;
    if (::dladdr(reinterpret_cast<const void *>(&functionOfLibraryBeside), &own) == 0)
        return library;
    return QFile::encodeName(QFileInfo(QFile::decodeName(own.dli_fname)).path()) + '/' + library;
}

} // namespace

LoadedFunction functionOfLibraryBeside(const char *library, const char *function)
{
    void *handle = ::dlopen(pathBeside(library).constData(), RTLD_NOW | RTLD_LOCAL);
    void *address = handle ? ::dlsym(handle, function) : nullptr;
    return {address, address ? QString() : loadingError()};
}

bool isLibraryBeside(const char *library)
{
    return ::access(pathBeside(library).constData(), R_OK) == 0;
}
