// The real settings crash with the pane in them; the next ones show the report, and its user decides what becomes of
// it.

#include "CrashProgram.h"
#include "InstalledProduct.h"
#include "KeyPress.h"
#include "ReportServer.h"
#include "TestBundle.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <linux/input-event-codes.h>

namespace {

const QString logFile = QStringLiteral("/Library/Logs/CrashReporter/lumaroo-settings.crash.log");

class CrashReportByUser : public InstalledProduct
{
protected:
    CrashReportByUser()
    {
        qputenv("HOME", QFile::encodeName(home_.path()));
        qputenv("LUMAROO_SYSTEM_ROOT", QFile::encodeName(home_.filePath("root")));
        setSystemVersion("12");
        storeOutside(KTXFirstLaunch, true);
    }
    ~CrashReportByUser() override
    {
        qputenv("HOME", previousHome_);
        qunsetenv("LUMAROO_SYSTEM_ROOT");
    }

    QString home() const { return home_.path(); }
    void setSystemVersion(const QByteArray &version) const
    {
        ASSERT_TRUE(QDir().mkpath(home_.filePath("root/etc")));
        QFile file(home_.filePath("root/etc/os-release"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("VERSION_ID=\"" + version + "\"\n");
    }
    /// Where reports go, and buttons with keys of their own.
    void sendReportsTo(const QUrl &address) const
    {
        const TestBundle texts("Texts");
        texts.writeStringTable("en", "QBCrashReporter",
            {{"CRASH_REPORT_CGI_URL", address.toString()}, {"WANT_TO_SEND_CRASH_SEND", "&Send"},
                {"WANT_TO_SEND_CRASH_SEND_LATER", "&Later"}, {"WANT_TO_SEND_CRASH_DONT_SEND", "&Never"},
                {"CRASH_MESSAGE_TEXT", "What I did"}, {"COULDNT_SEND_CRASH_REPORT_ERROR", "Not sent"},
                {"COULDNT_SEND_CRASH_REPORT_ERROR_OK", "&OK"}});
        const QString file = pane() + "/Contents/Resources/en.lproj/QBCrashReporter.qm";
        ASSERT_TRUE(QFile::remove(file));
        ASSERT_TRUE(QFile::copy(texts.resourcePath() + "/en.lproj/QBCrashReporter.qm", file));
    }
    void open() { settings = std::make_unique<SettingsProgram>(QStringList{pane()}); }
    /// Starts the settings and lets them crash once the pane is there.
    void crash()
    {
        open();
        ASSERT_TRUE(settings->waitForWindows(1));
        settings->signal(SIGABRT);
        EXPECT_EQ(settings->exitStatus(), -1);
    }
    /// Starts them again; whether they show the report beside their window, with the keyboard.
    bool opensWithReport()
    {
        open();
        return waitUntil([this] { return settings->windows().size() == 2 && reportHasKeyboard(); });
    }
    bool reportHasKeyboard() const
    {
        const QList<DesktopWindow> windows = settings->windows();
        return std::any_of(windows.begin(), windows.end(), [](const DesktopWindow &window) {
            return window.title != "Lumaroo" && window.id == windowWithKeyboard() && window.id == activeWindow();
        });
    }
    bool opensWithoutReport()
    {
        open();
        return settings->waitForWindows(1) && activeWindowTitle() == "Lumaroo";
    }
    bool closesReport() const
    {
        return waitUntil([this] { return settings->windows().size() == 1; });
    }
    void quit()
    {
        ASSERT_TRUE(settings->waitForWindows(1));
        pressKey(KEY_Q, {KEY_LEFTCTRL});
        ASSERT_EQ(settings->exitStatus(), 0);
    }
    static QDateTime remembered()
    {
        return CFPreferencesCopyAppValue(QBCrashReporterLastCrashReportDate, KTXLMAppID).toDateTime();
    }
    bool logHas(const QByteArray &text) const { return CrashProgram::contentOf(home() + logFile).contains(text); }

    std::unique_ptr<SettingsProgram> settings;

private:
    QTemporaryDir home_;
    QByteArray previousHome_ = qgetenv("HOME");
};

} // namespace

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
    EXPECT_TRUE(server.requests.first().contains(CrashProgram::contentOf(home() + logFile))) << "the log, whole";
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
    settings = std::make_unique<SettingsProgram>(QStringList());
    ASSERT_TRUE(waitUntil([this] { return !settings->windows().isEmpty(); }));
    settings->signal(SIGABRT);
    EXPECT_EQ(settings->exitStatus(), -1);
    EXPECT_TRUE(logHas("Process:"));
    EXPECT_FALSE(logHas("PlugIn Identifier"));
    EXPECT_TRUE(opensWithoutReport());
}

TEST_F(CrashReportByUser, theSettingsKeepTheLast20Records)
{
    const QByteArray separator = "\n\n**********\n\n";
    ASSERT_TRUE(QDir().mkpath(home() + "/Library/Logs/CrashReporter"));
    QFile file(home() + logFile);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(("record" + separator).repeated(24) + "last");
    file.close();
    open();
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_EQ(CrashProgram::contentOf(home() + logFile), ("record" + separator).repeated(19) + "last");
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
