// The real settings crash with the pane in them; the next ones show the report, and its user decides what becomes of
// it.

#include "CrashReportByUser.h"
#include "PaneBundle.h"
#include "ReportServer.h"

TEST_F(CrashReportByUser, aCrashLeavesALogThatNamesThePane)
{
    open();
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_FALSE(QFile::exists(home() + "/Library")) << "before the first crash there is nothing";
    settings->signal(SIGABRT);
    EXPECT_EQ(settings->exitStatus(), -1) << "it ends by the signal";
    EXPECT_TRUE(logHas("Process:         lumaroo-settings ["));
    EXPECT_TRUE(logHas("\nIdentifier:      com.apple.systempreferences\n"));
    EXPECT_TRUE(logHas("\nPlugIn Identifier: com.quorvane.Lumaroo\n"));
    EXPECT_TRUE(logHas("\nSignal:          SIGABRT (6): sent by a program\n"));
    EXPECT_TRUE(logHas("/liblumaroo-foundation.so"));
    EXPECT_FALSE(logHas(qgetenv("XDG_RUNTIME_DIR"))) << "nothing of the environment";
}

TEST_F(CrashReportByUser, aReportIsSentWhenItsUserSaysSoAndNotOfferedAgain)
{
    const ReportServer server;
    sendReportsTo(server.url());
    crash();
    ASSERT_TRUE(opensWithReport());
    EXPECT_TRUE(server.requests.isEmpty()) << "nothing is sent before";
    const QDateTime before = QDateTime::currentDateTimeUtc().addMSecs(-1);
    pressKey(KEY_S, {KEY_LEFTALT});
    ASSERT_TRUE(closesReport());
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(server.requests.first().contains("What I did"));
    EXPECT_TRUE(server.requests.first().contains(CrashProgram::contentOf(logFile()))) << "the log, whole";
    EXPECT_GE(remembered(), before);
    quit();
    EXPECT_TRUE(opensWithoutReport());
}

TEST_F(CrashReportByUser, aReportThatIsPutOffIsOfferedAgain)
{
    crash();
    ASSERT_TRUE(opensWithReport());
    const QDateTime before = remembered();
    sendReportsTo(QUrl("http://127.0.0.1:1/"));
    pressKey(KEY_ESC);
    ASSERT_TRUE(closesReport());
    quit();
    EXPECT_EQ(remembered(), before);
    EXPECT_TRUE(opensWithReport());
}

TEST_F(CrashReportByUser, aReportThatIsDiscardedIsNotOfferedAgain)
{
    const ReportServer server;
    sendReportsTo(server.url());
    crash();
    ASSERT_TRUE(opensWithReport());
    pressKey(KEY_N, {KEY_LEFTALT});
    ASSERT_TRUE(closesReport());
    quit();
    EXPECT_TRUE(opensWithoutReport());
    EXPECT_TRUE(server.requests.isEmpty());
}

TEST_F(CrashReportByUser, aReportThatCannotBeSentIsOfferedAgain)
{
    const ReportServer silent({"HTTP/1.1 2"});
    sendReportsTo(silent.url());
    crash();
    ASSERT_TRUE(opensWithReport());
    const QDateTime before = remembered();
    pressKey(KEY_S, {KEY_LEFTALT});
    ASSERT_TRUE(settings->waitForWindows(3)) << "it says so";
    ASSERT_TRUE(waitUntil([this] { return windowWithKeyboard() == settings->windows().last().id; }));
    pressKey(KEY_O, {KEY_LEFTALT});
    ASSERT_TRUE(closesReport());
    EXPECT_EQ(remembered(), before);
    quit();
    EXPECT_TRUE(opensWithReport());
}

TEST_F(CrashReportByUser, whereEachCrashHasAFileTheNewestIsShown)
{
    const ReportServer server;
    sendReportsTo(server.url());
    setSystemVersion("10.6");
    crash();
    ASSERT_TRUE(opensWithReport());
    settings->signal(SIGABRT);
    EXPECT_EQ(settings->exitStatus(), -1);
    const QDir folder(home() + "/Library/Logs/DiagnosticReports");
    const QStringList logs = folder.entryList({"lumaroo-settings_*.crash"}, QDir::Files, QDir::Time);
    ASSERT_EQ(logs.size(), 2);
    ASSERT_TRUE(opensWithReport());
    pressKey(KEY_S, {KEY_LEFTALT});
    ASSERT_TRUE(closesReport());
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(server.requests.first().contains(CrashProgram::contentOf(folder.filePath(logs.first()))));
}

TEST_F(CrashReportByUser, aCrashWithoutThePaneIsNotOffered)
{
    open();
    ASSERT_TRUE(settings->waitForWindows(1));
    quit();
    // With another pane beside it they open none by themselves.
    const PaneBundle other("Other");
    ASSERT_TRUE(QFile::link(other.path(), QFileInfo(pane()).path() + "/Other.prefPane"));
    settings = std::make_unique<SettingsProgram>(QStringList());
    ASSERT_TRUE(waitUntil([this] { return !settings->windows().isEmpty(); }));
    settings->signal(SIGABRT);
    EXPECT_EQ(settings->exitStatus(), -1);
    EXPECT_TRUE(logHas("Process:"));
    EXPECT_FALSE(logHas("PlugIn Identifier"));
    EXPECT_TRUE(opensWithoutReport());
}

TEST_F(CrashReportByUser, aPaneThatCouldNotBeLoadedIsNotNamed)
{
    const QString code = pane() + "/Contents/Linux/Lumaroo";
    ASSERT_TRUE(QFile::remove(code));
    ASSERT_TRUE(QFile::copy(qEnvironmentVariable("LUMAROO_BUILD") + "/tests/panes/Unresolved.so", code));
    open();
    ASSERT_TRUE(settings->waitForWindows(1));
    settings->signal(SIGABRT);
    EXPECT_EQ(settings->exitStatus(), -1);
    EXPECT_TRUE(logHas("Process:"));
    EXPECT_FALSE(logHas("PlugIn Identifier"));
}

TEST_F(CrashReportByUser, theSettingsKeepTheLast20Records)
{
    const QByteArray separator = "\n\n**********\n\n";
    ASSERT_TRUE(QDir().mkpath(home() + "/Library/Logs/CrashReporter"));
    QFile file(logFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(("record" + separator).repeated(24) + "last");
    file.close();
    open();
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_EQ(CrashProgram::contentOf(logFile()), ("record" + separator).repeated(19) + "last");
}

TEST_F(CrashReportByUser, theSettingsKeepTheLast20LogsWhereEachCrashHasAFile)
{
    setSystemVersion("10.5");
    const QDir folder(home() + "/Library/Logs/CrashReporter");
    ASSERT_TRUE(folder.mkpath("."));
    for (int i = 10; i < 35; ++i) {
        QFile file(folder.filePath(QStringLiteral("lumaroo-settings_%1.crash").arg(i)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.setFileTime(QDateTime::fromSecsSinceEpoch(i), QFileDevice::FileModificationTime));
    }
    open();
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_EQ(folder.entryList(QDir::Files).size(), 20);
    EXPECT_EQ(folder.entryList(QDir::Files, QDir::Name).value(0), "lumaroo-settings_15.crash");
}

TEST_F(CrashReportByUser, anAgentsCrashLeavesALogAndIsNotOffered)
{
    QProcess agent;
    agent.start(agentProgram(), {"--foreground"});
    ASSERT_TRUE(agentStarts());
    ASSERT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
    ::kill(agents().first(), SIGABRT);
    ASSERT_TRUE(agentEnds());
    const QByteArray log = CrashProgram::contentOf(home() + "/Library/Logs/CrashReporter/LumarooAgent.crash.log");
    EXPECT_TRUE(log.contains("\nIdentifier:      com.quorvane.LumarooAgent\n"));
    EXPECT_FALSE(log.contains("PlugIn"));
    EXPECT_TRUE(opensWithoutReport());
}

TEST_F(CrashReportByUser, nothingIsLookedForWhereNothingCanBeSent)
{
    // The libraries but the one that sends.
    const QTemporaryDir libraries;
    for (const char *name : {"liblumaroo-foundation.so.1", "liblumaroo-appkit.so.1"})
        ASSERT_TRUE(QFile::copy(qEnvironmentVariable("LUMAROO_BUILD") + "/lib/" + name, libraries.filePath(name)));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", libraries.path());
    HostProgram host(HostProgram::builtExecutable(), {pane()}, environment, home());
    ASSERT_TRUE(waitUntil([] { return openWindowTitles().contains("Lumaroo"); }));
    host.signal(SIGTERM);
    EXPECT_EQ(host.exitStatus(), 0);
    EXPECT_FALSE(remembered().isValid());
    open();
    ASSERT_TRUE(settings->waitForWindows(1));
    quit();
    EXPECT_TRUE(remembered().isValid()) << "with it, a check leaves its date";
}
