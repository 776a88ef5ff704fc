// The real settings application: one instance, its ends by signal, its command line.

#include "HostProgram.h"
#include "DesktopWindows.h"
#include "KeyPress.h"
#include "PaneBundle.h"
#include "RunningPrograms.h"
#include "Wait.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QDir>
#include <QScreen>
#include <csignal>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::ElementsAre;

namespace {

const QStringList shownCalls{
    "initialize", "initWithBundle", "mainViewDidLoad hidden", "willSelect hidden", "didSelect shown"};
const QStringList leftCalls{"willUnselect shown", "didUnselect hidden", "dealloc"};

bool isOpen(const QString &title)
{
    return waitUntil([&] { return openWindowTitles().contains(title); });
}

bool isActive(const QString &title)
{
    return waitUntil([&] { return activeWindowTitle() == title; });
}

bool isShown(const PaneBundle &pane)
{
    return waitUntil([&] { return pane.calls().contains("didSelect shown"); });
}

/// A pane in the user's folder beside the built one, while it lives: the settings start with their overview.
class OnePaneMore
{
public:
    explicit OnePaneMore(const PaneBundle &pane)
    {
        EXPECT_TRUE(QDir().mkpath(folder_) && QFile::link(pane.path(), link_));
    }
    ~OnePaneMore() { QFile::remove(link_); }
    Q_DISABLE_COPY_MOVE(OnePaneMore)

private:
    const QString folder_ = qEnvironmentVariable("XDG_DATA_HOME") + "/PreferencePanes";
    const QString link_ = folder_ + "/More.prefPane";
};

class TheSettingsApplication : public testing::Test
{
protected:
    /// Presses the key that quits and waits for the pane's question.
    void quitWithAQuestion()
    {
        pane.wish("shouldUnselect", "ask");
        ASSERT_TRUE(isActive("Sample"));
        pressKey(KEY_Q, {KEY_LEFTCTRL});
        ASSERT_TRUE(isActive("Test pane"));
    }

    static QString settings() { return QFileInfo(HostProgram::builtExecutable()).canonicalFilePath(); }

    PaneBundle pane{"Sample"};
    PaneBundle other{"Other"};
};

class TheSettingsApplicationEndedBy : public TheSettingsApplication, public testing::WithParamInterface<int>
{
};

} // namespace

TEST_F(TheSettingsApplication, opensAPaneByItsPath)
{
    HostProgram host({pane.path()});
    EXPECT_TRUE(isActive("Sample"));
    EXPECT_TRUE(isShown(pane));
    EXPECT_EQ(pane.calls(), shownCalls);
}

TEST_F(TheSettingsApplication, quitsByKeyInTheContractsOrder)
{
    HostProgram host({pane.path()});
    ASSERT_TRUE(isShown(pane));
    ASSERT_TRUE(isActive("Sample"));
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(host.exitStatus(), 0);
    EXPECT_EQ(pane.calls().mid(5), QStringList("shouldUnselect shown") + leftCalls);
}

TEST_F(TheSettingsApplication, handsASecondStartsRequestToTheFirst)
{
    const OnePaneMore more(other);
    HostProgram first;
    ASSERT_TRUE(isOpen("Settings"));
    HostProgram second({pane.path()});
    EXPECT_EQ(second.exitStatus(), 0);
    EXPECT_TRUE(isActive("Sample"));
    EXPECT_TRUE(isShown(pane));
    EXPECT_TRUE(first.isRunning());
    EXPECT_EQ(openWindowTitles(), QStringList("Sample"));
}

TEST_F(TheSettingsApplication, takesARelativePathFromTheSecondStartsFolder)
{
    const OnePaneMore more(other);
    HostProgram first;
    ASSERT_TRUE(isOpen("Settings"));
    HostProgram second(
        HostProgram::builtExecutable(), {"Sample.prefPane"}, QProcessEnvironment::systemEnvironment(), pane.folder());
    EXPECT_EQ(second.exitStatus(), 0);
    EXPECT_TRUE(isShown(pane));
}

TEST_F(TheSettingsApplication, isOnlyRaisedByASecondStartWithoutARequest)
{
    HostProgram first({pane.path()});
    ASSERT_TRUE(isShown(pane));
    QWidget cover;
    cover.setWindowTitle("Cover");
    cover.show();
    ASSERT_TRUE(isActive("Cover"));
    HostProgram second;
    EXPECT_EQ(second.exitStatus(), 0);
    EXPECT_TRUE(isActive("Sample"));
    EXPECT_EQ(pane.calls(), shownCalls);
}

TEST_F(TheSettingsApplication, answersASecondStartAtOnceWhileItAsksWhetherToLeaveThePane)
{
    HostProgram first({pane.path()});
    ASSERT_TRUE(isShown(pane));
    pane.wish("shouldUnselect", "ask");
    ASSERT_TRUE(isActive("Sample"));
    pressKey(KEY_LEFT, {KEY_LEFTALT});
    ASSERT_TRUE(isActive("Test pane"));
    HostProgram second({other.path()});
    EXPECT_EQ(second.exitStatus(), 0);
    EXPECT_TRUE(isActive("Test pane")) << "the question is still to be answered";
    pressKey(KEY_Y, {KEY_LEFTALT});
    EXPECT_TRUE(isShown(other));
}

TEST_F(TheSettingsApplication, answersASecondStartAtOnceWhileItAsksWhetherToQuitAndServesItIfItStays)
{
    HostProgram first({pane.path()});
    ASSERT_TRUE(isShown(pane));
    quitWithAQuestion();
    HostProgram second({other.path()});
    EXPECT_EQ(second.exitStatus(), 0);
    EXPECT_TRUE(isActive("Test pane")) << "the question is still to be answered";
    pane.wish("shouldUnselect", "");
    pressKey(KEY_ESC);
    EXPECT_TRUE(isShown(other));
    EXPECT_TRUE(first.isRunning());
}

TEST_F(TheSettingsApplication, answersASecondStartAtOnceWhileItAsksWhetherToQuitAndComesBackForItOnceItHasQuit)
{
    HostProgram first({pane.path()});
    ASSERT_TRUE(isShown(pane));
    quitWithAQuestion();
    HostProgram second({other.path()});
    EXPECT_EQ(second.exitStatus(), 0);
    HostProgram third;
    EXPECT_EQ(third.exitStatus(), 0);
    ASSERT_TRUE(isActive("Test pane"));
    pressKey(KEY_Y, {KEY_LEFTALT});
    EXPECT_EQ(first.exitStatus(), 0);
    EXPECT_TRUE(isShown(other));
    EXPECT_EQ(processesOf(settings()).size(), 1);
    killProcessesOf(settings());
}

TEST_F(TheSettingsApplication, runsWithoutASessionBus)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    HostProgram host(HostProgram::builtExecutable(), {pane.path()}, environment, "/");
    EXPECT_TRUE(isShown(pane));
    host.signal(SIGTERM);
    EXPECT_EQ(host.exitStatus(), 0);
}

TEST_F(TheSettingsApplication, speaksGerman)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LANGUAGE", "de");
    environment.insert("LANG", "de_DE.UTF-8");
    const OnePaneMore more(other);
    HostProgram host(HostProgram::builtExecutable(), {}, environment, "/");
    EXPECT_TRUE(isOpen("Einstellungen"));
}

TEST_F(TheSettingsApplication, isDarkWhenToldSo)
{
    HostProgram host({"--theme", "dark", pane.path()});
    ASSERT_TRUE(isShown(pane));
    const auto middleOfTheScreen = [] {
        return QGuiApplication::primaryScreen()->grabWindow().toImage().pixelColor(640, 640);
    };
    EXPECT_TRUE(waitUntil([&] { return middleOfTheScreen() == QColor(0x23, 0x25, 0x28); }));
}

TEST_F(TheSettingsApplication, refusesASchemeThatIsNone)
{
    HostProgram host({"--theme", "blue"});
    EXPECT_EQ(host.exitStatus(), 2);
}

TEST_P(TheSettingsApplicationEndedBy, aSignalLeavesThePaneWithoutAsking)
{
    pane.wish("shouldUnselect", "cancel");
    HostProgram host({pane.path()});
    ASSERT_TRUE(isShown(pane));
    host.signal(GetParam());
    EXPECT_EQ(host.exitStatus(), 0);
    EXPECT_EQ(pane.calls(), shownCalls + leftCalls);
    EXPECT_EQ(CFPreferencesCopyAppValue("LastPane", "com.apple.systempreferences").toString(), "test.Sample");
}

TEST_P(TheSettingsApplicationEndedBy, aSignalEndsThePanesQuestionToo)
{
    HostProgram host({pane.path()});
    ASSERT_TRUE(isShown(pane));
    quitWithAQuestion();
    host.signal(GetParam());
    EXPECT_EQ(host.exitStatus(), 0);
    EXPECT_EQ(pane.calls().mid(5), QStringList({"shouldUnselect shown", "question ended"}) + leftCalls);
}

INSTANTIATE_TEST_SUITE_P(Signals, TheSettingsApplicationEndedBy, testing::Values(SIGTERM, SIGINT, SIGHUP));
