#include "KTXConstants.h"
#include "platform/appkit/interface/NSPreferencePane.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QPluginLoader>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

QString productBundle()
{
    return qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane");
}

} // namespace

TEST(PlugIn, theBundlesExecutableYieldsAPaneThatLoadsItsView)
{
    // Not its first run: the agent stays as it is.
    CFPreferencesSetAppValue(KTXFirstLaunch, false, KTXLMAppID);
    NSBundle *bundle = NSBundle::bundleWithPath(productBundle());
    ASSERT_NE(bundle, nullptr);
    QPluginLoader loader(bundle->executablePath());
    auto *principalClass = qobject_cast<NSPrincipalClass *>(loader.instance());
    ASSERT_NE(principalClass, nullptr) << loader.errorString().toStdString();
    principalClass->initialize();
    const std::unique_ptr<NSPreferencePane> pane(principalClass->alloc());
    EXPECT_TRUE(pane->initWithBundle(bundle));
    EXPECT_NE(pane->loadMainView(), nullptr);
    // Most users never ask for a web page, and its library costs every start.
    QFile maps(QStringLiteral("/proc/self/maps"));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    EXPECT_FALSE(maps.readAll().contains("libQt6Network"));
}

TEST(PlugIn, itSharesThePlatformLibrariesWithItsHost)
{
    QPluginLoader loader(productBundle() + QStringLiteral("/Contents/Linux/Lumaroo"));
    ASSERT_NE(loader.instance(), nullptr) << loader.errorString().toStdString();
    QFile maps(QStringLiteral("/proc/self/maps"));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    QSet<QByteArray> libraries;
    for (const QByteArray &line : maps.readAll().split('\n')) {
        const QByteArray path = line.mid(line.indexOf('/'));
        if (path.contains("liblumaroo-"))
            libraries += path;
    }
    for (const char *name : {"liblumaroo-foundation.", "liblumaroo-appkit.", "liblumaroo-updater."}) {
        const auto isNamed = [name](const QByteArray &path) { return path.contains(name); };
        EXPECT_EQ(std::count_if(libraries.cbegin(), libraries.cend(), isNamed), 1) << name;
    }
    EXPECT_EQ(libraries.size(), 3);
}
