#include "platform/appkit/web/internal/NetworkAnswer.h"

#include <dlfcn.h>

namespace {

struct NetworkLibrary
{
    NetworkLibraryFunction function = nullptr;
    QString error;
};

QString loadingError()
{
    const char *error = ::dlerror();
    return QString::fromLocal8Bit(error ? error : "nothing there");
}

/// Found where this library itself lies.
NetworkLibrary loadNetworkLibrary()
{
    void *handle = ::dlopen(LUMAROO_NETWORK_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    void *function = handle ? ::dlsym(handle, networkLibraryFunction) : nullptr;
    if (!function)
        return {nullptr, loadingError()};
    return {reinterpret_cast<NetworkLibraryFunction>(function), {}};
}

} // namespace

NetworkAnswer networkAnswer(const NSMutableURLRequest &request)
{
    static const NetworkLibrary library = loadNetworkLibrary();
    if (!library.function)
        return {0, library.error};
    NetworkAnswer answer;
    library.function(&request, &answer);
    return answer;
}
