// What the pane tells and changes of the start at login.

#include "KTXLoginEntry.h"
#include "OpenAlert.h"
#include "PaneWithAgent.h"
#include "Wait.h"

#include <QDir>

namespace {

class PaneAtLogin : public PaneWithAgent
{
protected:
    PaneAtLogin()
    {
        setStartAtLogin(false, {});
        putAgent();
    }
    ~PaneAtLogin() override { setStartAtLogin(false, {}); }

    bool showsOn(bool on)
    {
        return waitUntil([&] { return state(control("startAtLoginButton")) == (on ? NSOnState : NSOffState); });
    }
};

} // namespace

TEST_F(PaneAtLogin, showsWhatTheDesktopDoes)
{
    const QString program = QStringLiteral("/bin/sh");
    showPane();
    EXPECT_TRUE(showsOn(false));
    ASSERT_EQ(setStartAtLogin(true, program), "");
    EXPECT_TRUE(showsOn(true)) << "its folder was none before, too";
    QFile entry(loginEntryPath());
    ASSERT_TRUE(entry.open(QIODevice::Append));
    entry.write("Hidden=true\n");
    entry.close();
    EXPECT_TRUE(showsOn(false)) << "switched off in the desktop's own list";
    ASSERT_EQ(setStartAtLogin(true, program), "");
    EXPECT_TRUE(showsOn(true));
    ASSERT_EQ(setStartAtLogin(false, program), "");
    EXPECT_TRUE(showsOn(false));
    ASSERT_EQ(setStartAtLogin(true, "/nowhere/program"), "");
    ASSERT_EQ(setStartAtLogin(true, program), "");
    EXPECT_TRUE(showsOn(true));
}

TEST_F(PaneAtLogin, isSwitchedByItsCheckBox)
{
    showPane();
    performClick(control("startAtLoginButton"));
    QFile entry(loginEntryPath());
    ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
    EXPECT_TRUE(entry.readAll().contains("TryExec=" + QFile::encodeName(agentProgram()) + '\n'));
    EXPECT_TRUE(showsOn(true));
    performClick(control("startAtLoginButton"));
    EXPECT_FALSE(QFile::exists(loginEntryPath()));
}

TEST_F(PaneAtLogin, tellsThatItCannotBeSwitchedAndShowsWhatHolds)
{
    const QString folder = QFileInfo(loginEntryPath()).path();
    ASSERT_EQ(setStartAtLogin(true, "/bin/sh"), "");
    showWindow();
    ASSERT_TRUE(showsOn(true));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    performClick(control("startAtLoginButton"));
    EXPECT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert().value(0), "The start at login could not be changed.");
    EXPECT_TRUE(showsOn(true));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
