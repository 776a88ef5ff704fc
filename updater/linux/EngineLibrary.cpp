#include "updater/UpdateEngine.h"

#include <QFile>
#include <QFileInfo>
#include <dlfcn.h>

namespace {

struct EngineLibrary
{
    UpdateEngineFunction function = nullptr;
    QString error;
};

QString loadingError()
{
    const char *error = ::dlerror();
    return QString::fromLocal8Bit(error ? error : "nothing there");
}

/// It lies beside this library. (Its bare name would do, but a sanitizer's loader does not search there.)
QByteArray pathOfEngineLibrary()
{
    Dl_info own;
    if (::dladdr(reinterpret_cast<const void *>(&makeUpdateEngine), &own) == 0)
        return LUMAROO_UPDATE_ENGINE_LIBRARY;
    return QFile::encodeName(QFileInfo(QFile::decodeName(own.dli_fname)).path()) + "/" LUMAROO_UPDATE_ENGINE_LIBRARY;
}

EngineLibrary loadEngineLibrary()
{
    void *handle = ::dlopen(pathOfEngineLibrary().constData(), RTLD_NOW | RTLD_LOCAL);
    void *function = handle ? ::dlsym(handle, updateEngineFunction) : nullptr;
    if (!function)
        return {nullptr, loadingError()};
    return {reinterpret_cast<UpdateEngineFunction>(function), {}};
}

} // namespace

std::unique_ptr<UpdateEngine> makeUpdateEngine(NSBundle *bundle, QString *error)
{
    static const EngineLibrary library = loadEngineLibrary();
    *error = library.error;
    return std::unique_ptr<UpdateEngine>(library.function ? library.function(bundle) : nullptr);
}
