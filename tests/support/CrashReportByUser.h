#pragma once

#include "CrashProgram.h"
#include "InstalledProduct.h"
#include "KeyPress.h"
#include "TestBundle.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <linux/input-event-codes.h>

/// The whole product in a home folder and on a system of its own: the settings crash, and are started again.
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
        return reportIsReady();
    }
    bool reportHasKeyboard() const
    {
        const QList<DesktopWindow> windows = settings->windows();
        return std::any_of(windows.begin(), windows.end(), [](const DesktopWindow &window) {
            return window.title != "Lumaroo" && window.id == windowWithKeyboard() && window.id == activeWindow();
        });
    }
    bool reportIsReady() const
    {
        return waitUntil([this] { return settings->windows().size() == 2 && reportHasKeyboard(); });
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
    QString logFile() const
    {
        return home() + QStringLiteral("/Library/Logs/CrashReporter/lumaroo-settings.crash.log");
    }
    bool logHas(const QByteArray &text) const { return CrashProgram::contentOf(logFile()).contains(text); }

    std::unique_ptr<SettingsProgram> settings;

private:
    QTemporaryDir home_;
    QByteArray previousHome_ = qgetenv("HOME");
};
