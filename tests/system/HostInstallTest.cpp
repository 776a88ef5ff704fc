// What `cmake --install` puts into a prefix works from there, wherever the prefix is moved to.

#include "DesktopWindows.h"
#include "HostProgram.h"
#include "PaneBundle.h"
#include "Wait.h"

#include <QDir>
#include <csignal>
#include <gmock/gmock.h>

namespace {

void run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    ASSERT_TRUE(process.waitForFinished(120000)) << qPrintable(process.errorString());
    ASSERT_EQ(process.exitCode(), 0) << process.readAll().constData();
}

class AnInstalledPrefix : public testing::Test
{
protected:
    void SetUp() override
    {
        run("cmake", {"--install", qEnvironmentVariable("LUMAROO_BUILD"), "--prefix", folder.path() + "/first"});
        ASSERT_TRUE(QDir().rename(folder.path() + "/first", prefix));
    }
    QString command() const { return prefix + "/bin/lumaroo-settings"; }

    QTemporaryDir folder;
    const QString prefix = folder.path() + "/moved";
};

} // namespace

TEST_F(AnInstalledPrefix, startsFromThereWithItsOwnLibraries)
{
    HostProgram host(command(), {}, QProcessEnvironment::systemEnvironment(), "/");
    ASSERT_TRUE(waitUntil([] { return openWindowTitles().contains("Lumaroo"); }));
    const QStringList maps = linesOf(QString("/proc/%1/maps").arg(host.processId()));
    const QStringList libraries = maps.filter("liblumaroo-");
    EXPECT_FALSE(libraries.isEmpty());
    for (const QString &library : libraries)
        EXPECT_TRUE(library.contains(prefix + "/lib/lumaroo/")) << qPrintable(library);
}

TEST_F(AnInstalledPrefix, opensTheInstalledPane)
{
    HostProgram host(command(), {"com.quorvane.Lumaroo"}, QProcessEnvironment::systemEnvironment(), "/");
    ASSERT_TRUE(waitUntil([] { return openWindowTitles().contains("Lumaroo"); }));
    const QStringList maps = linesOf(QString("/proc/%1/maps").arg(host.processId()));
    EXPECT_FALSE(
        maps.filter(prefix + "/lib/lumaroo/PreferencePanes/Lumaroo.prefPane/Contents/Linux/Lumaroo").isEmpty());
    host.signal(SIGTERM);
    EXPECT_EQ(host.exitStatus(), 0);
}

TEST_F(AnInstalledPrefix, findsThePanesInstalledWithIt)
{
    const PaneBundle pane("Sample");
    const QString panes = prefix + "/lib/lumaroo/PreferencePanes";
    ASSERT_TRUE(QDir().mkpath(panes));
    run("cp", {"-r", pane.path(), panes});
    HostProgram host(command(), {"test.Sample"}, QProcessEnvironment::systemEnvironment(), "/");
    EXPECT_TRUE(waitUntil([&] { return linesOf(panes + "/Sample.prefPane/calls").contains("didSelect shown"); }));
    host.signal(SIGTERM);
    EXPECT_EQ(host.exitStatus(), 0);
}

TEST_F(AnInstalledPrefix, prefersThePanesOfTheUser)
{
    const PaneBundle systems("Sample");
    const PaneBundle mine("Sample");
    const QString usersFolder = qEnvironmentVariable("XDG_DATA_HOME") + "/PreferencePanes";
    ASSERT_TRUE(QDir().mkpath(usersFolder));
    const QString panes = prefix + "/lib/lumaroo/PreferencePanes";
    ASSERT_TRUE(QDir().mkpath(panes));
    run("cp", {"-r", systems.path(), panes});
    ASSERT_TRUE(QFile::link(mine.path(), usersFolder + "/Sample.prefPane"));
    HostProgram host(command(), {"test.Sample"}, QProcessEnvironment::systemEnvironment(), "/");
    EXPECT_TRUE(waitUntil([&] { return mine.calls().contains("didSelect shown"); }));
    EXPECT_TRUE(QFile::remove(usersFolder + "/Sample.prefPane"));
}

TEST_F(AnInstalledPrefix, speaksGermanFromThere)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LANGUAGE", "de");
    environment.insert("LANG", "de_DE.UTF-8");
    // Where there are several panes, the settings show them all under their own name.
    const PaneBundle other("Other");
    run("cp", {"-r", other.path(), prefix + "/lib/lumaroo/PreferencePanes"});
    HostProgram host(command(), {}, environment, "/");
    EXPECT_TRUE(waitUntil([] { return openWindowTitles().contains("Einstellungen"); }));
}
