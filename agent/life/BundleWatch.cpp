#include "agent/life/BundleWatch.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// The folder that holds a path, so many levels up.
QString folderOf(const QString &path, int levels)
{
    return QDir::cleanPath(path + QStringLiteral("/..").repeated(levels));
}

} // namespace

BundleWatch::BundleWatch(const QString &bundlePath, const QString &program)
    // A folder tells of what is in it, not that it goes itself with one above: so the program's, the bundle's, and the
    // one of the pane around that.
    : folders_{folderOf(program, 1), folderOf(bundlePath, 1), folderOf(bundlePath, 4)}, program_(program)
{
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &BundleWatch::look);
    connect(&patience_, &QTimer::timeout, this, [this] {
        if (!QFileInfo::exists(program_))
            Q_EMIT removed();
    });
    watch();
}

void BundleWatch::look()
{
    watch();
    if (!QFileInfo::exists(program_) && !patience_.isActive())
        patience_.start();
}

/// What came in the place of a folder is another one.
void BundleWatch::watch()
{
    if (!watcher_.directories().isEmpty())
        watcher_.removePaths(watcher_.directories());
    for (const QString &folder : std::as_const(folders_)) {
        if (QFileInfo::exists(folder))
            watcher_.addPath(folder);
    }
}
