#include "platform/appkit/web/internal/NetworkAnswer.h"

#include <QFile>
#include <QFileInfo>
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

/// It lies beside this library. (Its bare name would do, but a sanitizer's loader does not search there.)
QByteArray pathOfNetworkLibrary()
{
    Dl_info own;
    if (::dladdr(reinterpret_cast<const void *>(&networkAnswer), &own) == 0)
        return LUMAROO_NETWORK_LIBRARY;
    return QFile::encodeName(QFileInfo(QFile::decodeName(own.dli_fname)).path()) + "/" LUMAROO_NETWORK_LIBRARY;
}

NetworkLibrary loadNetworkLibrary()
{
    void *handle = ::dlopen(pathOfNetworkLibrary().constData(), RTLD_NOW | RTLD_LOCAL);
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
