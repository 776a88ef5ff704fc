#include "TestBundle.h"

#include "crashreporter/QBAppBundle.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <gtest/gtest.h>

namespace {

NSBundle *at(const QString &path)
{
    return NSBundle::bundleWithPath(path);
}

class ReportedBundle : public testing::Test
{
protected:
    ReportedBundle() { pane.writeInfo({{"CFBundleIdentifier", "com.quorvane.Lumaroo"}}); }

    const TestBundle pane{"Lumaroo.prefPane"};
    const TestBundle application{"Application.app"};
};

} // namespace

// First of all, while no pane is loaded.
TEST(ReportedBundleWithoutPane, isNoneInsideTheSettings)
{
    const TestBundle application("Application.app");
    application.writeInfo({{"CFBundleIdentifier", "com.apple.systempreferences"}});
    EXPECT_EQ(QBAppBundleOfMainBundle(at(application.path())), nullptr);
}

TEST_F(ReportedBundle, isTheMainOneOfAnyApplication)
{
    application.writeInfo({{"CFBundleIdentifier", "com.example.Application"}});
    EXPECT_EQ(QBAppBundleOfMainBundle(at(application.path())), at(application.path()));
    const TestBundle bare("Bare.app");
    EXPECT_EQ(QBAppBundleOfMainBundle(at(bare.path())), at(bare.path()));
}

TEST_F(ReportedBundle, isThePanesInsideTheSettings)
{
    application.writeInfo({{"CFBundleIdentifier", "com.apple.systempreferences"}});
    at(pane.path())->setLoaded();
    EXPECT_EQ(QBAppBundleOfMainBundle(at(application.path())), at(pane.path()));
}

TEST_F(ReportedBundle, isThePaneAroundTheAgent)
{
    const QString agent = "Contents/Resources/LumarooAgent.app";
    pane.writeFile(agent + "/Contents/Info.plist",
        R"(<plist version="1.0"><dict><key>CFBundleIdentifier</key><string>com.quorvane.LumarooAgent</string></dict></plist>)");
    EXPECT_EQ(QBAppBundleOfMainBundle(at(pane.path() + '/' + agent)), at(pane.path()));
}
