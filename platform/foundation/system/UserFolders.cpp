#include "platform/foundation/system/UserFolders.h"

#include <QDir>
#include <QFile>
#include <cstdlib>

namespace {

/// A folder, with what it was found from.
class UserFolder
{
public:
    UserFolder(const char *variable, const QString &inHome) : variable_(variable), inHome_(inHome) { }

    /// Every key of the settings that is read or written asks: what has not changed is not looked up again.
    const QString &path()
    {
        const char *named = std::getenv(variable_);
        const char *home = std::getenv("HOME");
        if (path_.isEmpty() || named_ != named || home_ != home) {
            named_ = named;
            home_ = home;
            path_ = named_.startsWith('/') ? QFile::decodeName(named_) : QDir::homePath() + u'/' + inHome_;
        }
        return path_;
    }

private:
    const char *const variable_;
    const QString inHome_;
    QByteArray named_;
    QByteArray home_;
    QString path_;
};

} // namespace

const QString &userConfigurationFolder()
{
    static UserFolder folder("XDG_CONFIG_HOME", QStringLiteral(".config"));
    return folder.path();
}

const QString &userDataFolder()
{
    static UserFolder folder("XDG_DATA_HOME", QStringLiteral(".local/share"));
    return folder.path();
}

const QString &userCacheFolder()
{
    static UserFolder folder("XDG_CACHE_HOME", QStringLiteral(".cache"));
    return folder.path();
}
