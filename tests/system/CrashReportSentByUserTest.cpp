// What becomes of a crash report of the real settings, by what the makers' server does and how its user leaves.

#include "CrashReportByUser.h"
#include "ReportServer.h"

namespace {

class CrashReportSentByUser : public CrashReportByUser
{
protected:
    void crashAndSendTo(const QUrl &address)
    {
        sendReportsTo(address);
        crash();
        ASSERT_TRUE(opensWithReport());
        before_ = remembered();
        pressKey(KEY_S, {KEY_LEFTALT});
    }
    bool isRemembered() const { return remembered() > before_; }
    void readAlert() const
    {
        ASSERT_TRUE(settings->waitForWindows(3)) << "it says so";
        ASSERT_TRUE(waitUntil([this] { return windowWithKeyboard() == settings->windows().last().id; }));
        pressKey(KEY_O, {KEY_LEFTALT});
    }
    void quitFromTheSettingsWindow() const
    {
        const QList<DesktopWindow> windows = settings->windows();
        const auto own = std::find_if(
            windows.begin(), windows.end(), [](const DesktopWindow &window) { return window.title == "Lumaroo"; });
        ASSERT_NE(own, windows.end());
        turnToWindow(own->id);
        ASSERT_TRUE(waitUntil([own] { return windowWithKeyboard() == own->id; }));
        pressKey(KEY_Q, {KEY_LEFTCTRL});
        EXPECT_EQ(settings->exitStatus(), 0);
    }

private:
    QDateTime before_;
};

class CrashReportAnswered : public CrashReportSentByUser, public testing::WithParamInterface<int>
{
};

} // namespace

TEST_P(CrashReportAnswered, isDealtWithWhateverTheServerThinksOfIt)
{
    const ReportServer server({ReportServer::status(GetParam())});
    crashAndSendTo(server.url());
    ASSERT_TRUE(closesReport());
    EXPECT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(isRemembered());
    quit();
}

INSTANTIATE_TEST_SUITE_P(Statuses, CrashReportAnswered, testing::Values(404, 500));

TEST_F(CrashReportSentByUser, aRedirectionIsJudgedByItsEnd)
{
    const ReportServer end;
    const ReportServer server({ReportServer::redirection(302, end.url("/end"))});
    crashAndSendTo(server.url());
    ASSERT_TRUE(closesReport());
    EXPECT_EQ(end.requests.size(), 1);
    EXPECT_TRUE(isRemembered());
    quit();
}

TEST_F(CrashReportSentByUser, whereNobodyListensItSaysSoAndTheReportIsOfferedAgain)
{
    crashAndSendTo(QUrl("http://127.0.0.1:1/"));
    readAlert();
    ASSERT_TRUE(closesReport());
    EXPECT_FALSE(isRemembered());
    quit();
    EXPECT_TRUE(opensWithReport());
}

TEST_F(CrashReportSentByUser, theSettingsMayBeQuitWhileAServerSaysNothing)
{
    const ReportServer server({ReportServer::silence});
    crashAndSendTo(server.url());
    ASSERT_TRUE(waitUntil([&] { return server.requests.size() == 1; }));
    pressKey(KEY_ESC);
    quitFromTheSettingsWindow();
    EXPECT_FALSE(isRemembered());
    EXPECT_TRUE(opensWithReport());
}

TEST_F(CrashReportSentByUser, theSettingsMayBeQuitWithTheReportOpen)
{
    crash();
    ASSERT_TRUE(opensWithReport());
    quitFromTheSettingsWindow();
    EXPECT_TRUE(opensWithReport());
}

TEST_F(CrashReportSentByUser, theFramesCloseButtonPutsTheReportOff)
{
    crash();
    ASSERT_TRUE(opensWithReport());
    askToClose(activeWindow());
    ASSERT_TRUE(closesReport());
    quit();
    EXPECT_TRUE(opensWithReport());
}

TEST_F(CrashReportSentByUser, onASystemWithAFileForEachCrashInTheReportersFolder)
{
    const ReportServer server;
    setSystemVersion("10.5");
    crashAndSendTo(server.url());
    ASSERT_TRUE(closesReport());
    const QDir folder(home() + "/Library/Logs/CrashReporter");
    const QStringList logs = folder.entryList(QDir::Files);
    ASSERT_EQ(logs.size(), 1);
    EXPECT_TRUE(logs[0].startsWith("lumaroo-settings_") && logs[0].endsWith(".crash"));
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(server.requests[0].contains(CrashProgram::contentOf(folder.filePath(logs[0]))));
    EXPECT_TRUE(isRemembered());
    quit();
    EXPECT_TRUE(opensWithoutReport());
}
