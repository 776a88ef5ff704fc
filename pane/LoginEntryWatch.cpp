#include "pane/LoginEntryWatch.h"

#include "KTXLoginEntry.h"
#include "platform/foundation/system/UserFolders.h"

#include <QFileInfo>

LoginEntryWatch::LoginEntryWatch()
{
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &LoginEntryWatch::follow);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &LoginEntryWatch::follow);
    follow();
}

void LoginEntryWatch::follow()
{
    // Its folder comes with the first entry, and a file that is replaced is another one.
    const QString entry = loginEntryPath();
    for (const QString &path : {userConfigurationFolder(), QFileInfo(entry).path(), entry}) {
        const bool isWatched = watcher_.files().contains(path) || watcher_.directories().contains(path);
        if (!isWatched && QFileInfo::exists(path))
            watcher_.addPath(path);
    }
    Q_EMIT changed();
}
