// Where the menu entry stands in desktops' own menus, by the files with which they build them.

#include "ProgramResult.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using testing::StrEq;

namespace {

/// The path of each place at which a menu has the entry, a line each.
const char *const placesInMenu = R"(
import sys, xdg.Menu
def walk(menu, path):
    for entry in menu.getEntries():
        if isinstance(entry, xdg.Menu.Menu):
            walk(entry, path + [entry.Name])
        elif isinstance(entry, xdg.Menu.MenuEntry):
            print("/".join(path + [entry.DesktopEntry.getName()]))
walk(xdg.Menu.parse(sys.argv[1]), [])
)";

class TheMenuEntry : public testing::Test
{
protected:
    TheMenuEntry()
    {
        const QString name = "com.quorvane.LumarooSettings.desktop";
        EXPECT_TRUE(QDir(folder.path()).mkpath("applications"));
        EXPECT_TRUE(QFile::copy(
            qEnvironmentVariable("LUMAROO_SOURCE") + "/packaging/" + name, folder.filePath("applications/" + name)));
        environment.insert("XDG_DATA_DIRS", folder.path());
    }

    std::string placesIn(const QString &menu) const
    {
        const ProgramResult result =
            runProgram("/usr/bin/python3", {"-c", placesInMenu, "/etc/xdg/menus/" + menu + ".menu"}, {}, environment);
        EXPECT_EQ(result.status, 0) << result.errors;
        return result.output;
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

} // namespace

TEST_F(TheMenuEntry, isAmongThePersonalOnesOfTheSettingsManagerOfXFCE)
{
    EXPECT_THAT(placesIn("xfce-settings-manager"), StrEq("Personal/Lumaroo Settings\n"));
}

TEST_F(TheMenuEntry, isOnceAmongThePreferencesOfMATE)
{
    EXPECT_THAT(placesIn("mate-settings"), StrEq("Preferences/Look and Feel/Lumaroo Settings\n"));
}

TEST_F(TheMenuEntry, isAmongTheSettingsInTheMenuOfKDE)
{
    EXPECT_THAT(placesIn("kf5-applications"), StrEq("Settingsmenu/Lumaroo Settings\n"));
}
