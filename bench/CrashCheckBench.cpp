// What the check for a crash costs a pane's start where there is nothing new, by system calls and by time: with one
// file for all of a program's crashes, and with a file for each in a folder that others use as well, against a bare
// walk of that folder in the same run, which dates this program's logs and does nothing else. Needs a home folder of
// its own.

#include "KTXConstants.h"
#include "bench/Median.h"
#include "bench/SystemCallCount.h"
#include "crashreporter/QBCheckForCrash.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <vector>

namespace {

constexpr int rounds = 200;
constexpr int ownLogs = 20; // what the settings keep
constexpr int otherFiles = 10'000;
// This program stands in no bundle, so its name is empty.
const QString oneFile = QStringLiteral("/Library/Logs/CrashReporter/.crash.log");
const QString folder = QStringLiteral("/Library/Logs/DiagnosticReports/");

bool put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}

QString systemOfVersion(const QString &version)
{
    return QDir::homePath() + QStringLiteral("/system-") + version;
}

bool putSystem(const QString &version)
{
    return put(
        systemOfVersion(version) + QStringLiteral("/etc/os-release"), "VERSION_ID=\"" + version.toLatin1() + "\"\n");
}

void setSystemVersion(const QString &version)
{
    qputenv("LUMAROO_SYSTEM_ROOT", QFile::encodeName(systemOfVersion(version)));
}

bool putLogs()
{
    const QString home = QDir::homePath();
    bool isPut = put(home + oneFile, "PlugIn Identifier: com.quorvane.Lumaroo\n");
    for (int i = 0; i < ownLogs; ++i)
        isPut = isPut && put(home + folder + QStringLiteral("_%1.crash").arg(i), "");
    for (int i = 0; i < otherFiles; ++i)
        isPut = isPut && put(home + folder + QStringLiteral("another-program_%1.crash").arg(i), "");
    return isPut;
}

/// The newest log is told by its date alone, so whoever looks for it has to ask for each of them.
void walkBare()
{
    DIR *opened = ::opendir(QFile::encodeName(QDir::homePath() + folder).constData());
    while (const dirent *entry = opened ? ::readdir(opened) : nullptr) {
        struct stat status = {};
        if (entry->d_name[0] == '_')
            ::fstatat(::dirfd(opened), entry->d_name, &status, AT_SYMLINK_NOFOLLOW);
    }
    ::closedir(opened);
}

double microseconds(void (*work)())
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1000;
}

void measureOneFile()
{
    setSystemVersion(QStringLiteral("12"));
    QBCrashReporterCheckForCrash();
    std::printf("check with one file for all crashes: %d system calls (goal: at most 20)\n",
        systemCallsOf(QBCrashReporterCheckForCrash));
}

void measureFolder()
{
    std::vector<double> checks;
    std::vector<double> walks;
    setSystemVersion(QStringLiteral("10.6"));
    QBCrashReporterCheckForCrash();
    for (int round = 0; round < rounds; ++round) {
        walks.push_back(microseconds(walkBare));
        checks.push_back(microseconds(QBCrashReporterCheckForCrash));
    }
    std::printf("check of a folder of %d files: %.1f us; bare walk: %.1f us; ratio %.2f (goal: at most 1.5; medians of "
                "%d)\n",
        ownLogs + otherFiles, median(checks), median(walks), median(checks) / median(walks), rounds);
    std::printf("and %d system calls more (goal: at most 10)\n",
        systemCallsOf(QBCrashReporterCheckForCrash) - systemCallsOf(walkBare));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QApplication application(argumentCount, arguments);
    if (!putLogs() || !putSystem(QStringLiteral("12")) || !putSystem(QStringLiteral("10.6"))) {
        std::fputs("CrashCheckBench: the logs cannot be made\n", stderr);
        return 1;
    }
    CFPreferencesSetAppValue(
        QBCrashReporterLastCrashReportDate, QDateTime::currentDateTimeUtc().addDays(1), KTXLMAppID);
    CFPreferencesAppSynchronize(KTXLMAppID);
    // What has changed only just is read at each use; systems are older than that.
    QThread::sleep(3);
    measureOneFile();
    measureFolder();
    return 0;
}
