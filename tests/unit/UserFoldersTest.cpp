#include "platform/foundation/system/UserFolders.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

struct UserFolderOfAKind
{
    const char *variable;
    const QString &(*folder)();
    const char *inHome;
};

class AUserFolder : public testing::TestWithParam<UserFolderOfAKind>
{
protected:
    ~AUserFolder() override { qputenv(GetParam().variable, before_); }

    static QString pathWhenNamed(const char *name)
    {
        qputenv(GetParam().variable, name);
        return GetParam().folder();
    }
    static QString inHome() { return QDir::homePath() + u'/' + QString::fromLatin1(GetParam().inHome); }

private:
    QByteArray before_ = qgetenv(GetParam().variable);
};

} // namespace

TEST_P(AUserFolder, isTheOneThatTheEnvironmentNamesAtThisMoment)
{
    EXPECT_EQ(pathWhenNamed("/some/where"), "/some/where");
    EXPECT_EQ(pathWhenNamed("/else"), "/else");
}

TEST_P(AUserFolder, isInTheHomeFolderWhereNothingOrARelativePathIsNamed)
{
    EXPECT_EQ(pathWhenNamed("some/where"), inHome());
    EXPECT_EQ(pathWhenNamed(""), inHome());
    qunsetenv(GetParam().variable);
    EXPECT_EQ(GetParam().folder(), inHome());
}

TEST_P(AUserFolder, followsTheHomeFolder)
{
    qunsetenv(GetParam().variable);
    EXPECT_EQ(GetParam().folder(), inHome());
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/another/home");
    EXPECT_EQ(GetParam().folder(), QStringLiteral("/another/home/") + GetParam().inHome);
    qputenv("HOME", home);
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, AUserFolder,
    testing::Values(UserFolderOfAKind{"XDG_CONFIG_HOME", userConfigurationFolder, ".config"},
        UserFolderOfAKind{"XDG_DATA_HOME", userDataFolder, ".local/share"},
        UserFolderOfAKind{"XDG_CACHE_HOME", userCacheFolder, ".cache"}));
