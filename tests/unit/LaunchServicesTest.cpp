#include "TestApplication.h"
#include "Wait.h"

#include "platform/foundation/processes/LaunchServices.h"

#include <QFile>
#include <QTemporaryFile>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Lets an application write down how it finds itself.
const QByteArray selfReport = R"(
report=${0%/*}/report
{
    echo "process $$"
    cat /proc/$$/stat
    grep -E '^Sig(Blk|Ign)' /proc/self/status
    readlink /proc/$$/cwd
    ls -l /proc/$$/fd
} >"$report.new"
mv "$report.new" "$report"
)";

class Launch : public testing::Test
{
protected:
    OSStatus open(ProcessSerialNumber *process)
    {
        const FSRef reference{application.path()};
        const LSApplicationParameters parameters{0, kLSLaunchDontSwitch | kLSLaunchAsync, &reference};
        return LSOpenApplication(&parameters, process);
    }

    OSStatus openWithClosedStreams(ProcessSerialNumber *process)
    {
        const int input = ::dup(STDIN_FILENO), output = ::dup(STDOUT_FILENO);
        ::close(STDIN_FILENO);
        ::close(STDOUT_FILENO);
        const OSStatus status = open(process);
        ::dup2(input, STDIN_FILENO);
        ::dup2(output, STDOUT_FILENO);
        ::close(input);
        ::close(output);
        return status;
    }

    void replaceProgram(const QByteArray &script)
    {
        ASSERT_TRUE(QFile::remove(application.program()));
        application.bundle().writeScript(QStringLiteral("Contents/Linux/idle"), script);
    }

    QStringList report()
    {
        QFile file(application.path() + QStringLiteral("/Contents/Linux/report"));
        EXPECT_TRUE(waitUntil([&] { return file.exists(); }));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).split(u'\n');
    }

    /// The statuses that a failed launch gives, the serial number untouched and nothing left behind.
    OSStatus failure()
    {
        ProcessSerialNumber process{1, 2};
        const OSStatus status = open(&process);
        EXPECT_EQ(process, (ProcessSerialNumber{1, 2}));
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
        EXPECT_EQ(errno, ECHILD);
        return status;
    }

    TestApplication application;
};

} // namespace

TEST_F(Launch, givesTheSerialNumberOfTheRunningProgram)
{
    const ProcessSerialNumber process = application.launch();
    EXPECT_EQ(process.highLongOfPSN, 0u);
    EXPECT_EQ(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(process.lowLongOfPSN)), application.program());
}

TEST_F(Launch, theProgramIsASessionOfItsOwnAndNoChildOfOurs)
{
    replaceProgram(selfReport);
    ProcessSerialNumber process;
    ASSERT_EQ(open(&process), noErr);
    const QStringList lines = report();
    EXPECT_EQ(lines[0], QStringLiteral("process %1").arg(process.lowLongOfPSN));
    const QStringList afterName = lines[1].mid(lines[1].lastIndexOf(u')') + 2).split(u' ');
    EXPECT_NE(afterName[1].toInt(), ::getpid()) << "its parent";
    EXPECT_EQ(afterName[3].toUInt(), process.lowLongOfPSN) << "its session";
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(Launch, theProgramLeavesNoZombie)
{
    const pid_t process = pid_t(application.launch().lowLongOfPSN);
    ::kill(process, SIGKILL);
    EXPECT_TRUE(waitUntil([process] { return !QFile::exists(QStringLiteral("/proc/%1").arg(process)); }));
}

TEST_F(Launch, theProgramGetsNoOpenFileOfOursAndEmptyStreams)
{
    replaceProgram(selfReport);
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const int inheritable = ::fcntl(file.handle(), F_DUPFD, 0);
    ProcessSerialNumber process;
    ASSERT_EQ(open(&process), noErr);
    const QStringList lines = report();
    ::close(inheritable);
    EXPECT_TRUE(lines.filter(file.fileName()).isEmpty());
    EXPECT_EQ(lines.filter(QStringLiteral(" 0 -> /dev/null")).size(), 1);
    EXPECT_EQ(lines.filter(QStringLiteral(" 2 -> /dev/null")).size(), 1);
}

TEST_F(Launch, theProgramStartsInTheRootFolderWithAllSignalsAsUsual)
{
    replaceProgram(selfReport);
    ::signal(SIGUSR1, SIG_IGN);
    sigset_t blocked, before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGUSR2);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    ProcessSerialNumber process;
    ASSERT_EQ(open(&process), noErr);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ::signal(SIGUSR1, SIG_DFL);
    const QStringList lines = report();
    EXPECT_TRUE(lines.contains(QStringLiteral("SigBlk:\t0000000000000000")));
    EXPECT_TRUE(lines.contains(QStringLiteral("SigIgn:\t0000000000000000")));
    EXPECT_TRUE(lines.contains(QStringLiteral("/")));
}

TEST_F(Launch, aProgramThatIsNotExecutableIsAnErrorAtOnce)
{
    QFile::setPermissions(application.program(), QFile::ReadOwner);
    EXPECT_EQ(failure(), kLSNoExecutableErr);
}

TEST_F(Launch, aMissingProgramIsAnErrorAtOnce)
{
    ASSERT_TRUE(QFile::remove(application.program()));
    EXPECT_EQ(failure(), kLSNoExecutableErr);
}

TEST_F(Launch, aProgramThatTheSystemDoesNotUnderstandIsAnErrorAtOnce)
{
    ASSERT_TRUE(QFile::remove(application.program()));
    application.bundle().writeFile(QStringLiteral("Contents/Linux/idle"), "no program");
    QFile::setPermissions(application.program(), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(failure(), kLSNoExecutableErr);
}

TEST_F(Launch, aBrokenInfoDictionaryIsAnError)
{
    application.bundle().writeFile(QStringLiteral("Contents/Info.plist"), "<plist><dict><key>");
    EXPECT_EQ(failure(), kLSApplicationNotFoundErr);
    ASSERT_TRUE(QFile::remove(application.path() + QStringLiteral("/Contents/Info.plist")));
    EXPECT_EQ(failure(), kLSApplicationNotFoundErr);
}

TEST_F(Launch, anInfoDictionaryThatNamesNoProgramOfTheBundleIsAnError)
{
    for (const QVariant &name : {QVariant(true), QVariant(7), QVariant(QString()), QVariant("../../outside")}) {
        application.bundle().writeInfo({{"CFBundleIdentifier", "test.application"}, {"CFBundleExecutable", name}});
        EXPECT_EQ(failure(), kLSApplicationNotFoundErr) << name.typeName();
    }
}

TEST_F(Launch, worksWhereOurOwnStandardStreamsAreClosed)
{
    replaceProgram(selfReport);
    ProcessSerialNumber process;
    const OSStatus status = openWithClosedStreams(&process);
    EXPECT_EQ(status, noErr);
    const QStringList lines = report();
    EXPECT_EQ(lines.filter(QStringLiteral(" 0 -> /dev/null")).size(), 1);
    EXPECT_EQ(lines.filter(QStringLiteral(" 1 -> ")).size(), 1);
}

TEST_F(Launch, reportsAFailureWhereOurOwnStandardStreamsAreClosed)
{
    ASSERT_TRUE(QFile::remove(application.program()));
    ProcessSerialNumber process;
    const OSStatus status = openWithClosedStreams(&process);
    EXPECT_EQ(status, kLSNoExecutableErr);
}

TEST_F(Launch, whatTheCallerMustGiveIsChecked)
{
    const FSRef reference{application.path()};
    const LSApplicationParameters otherVersion{1, 0, &reference}, noApplication{0, 0, nullptr};
    ProcessSerialNumber process;
    EXPECT_EQ(LSOpenApplication(nullptr, &process), paramErr);
    EXPECT_EQ(LSOpenApplication(&otherVersion, &process), paramErr);
    EXPECT_EQ(LSOpenApplication(&noApplication, &process), paramErr);
    EXPECT_EQ(process, kNoProcess);
}

TEST_F(Launch, aReferenceIsMadeOfWhatExistsOnly)
{
    FSRef reference{QStringLiteral("before")};
    EXPECT_EQ(FSPathMakeRef({}, &reference), fnfErr);
    EXPECT_EQ(FSPathMakeRef(QStringLiteral("/no such file"), &reference), fnfErr);
    EXPECT_EQ(reference.path, QStringLiteral("before"));
    EXPECT_EQ(FSPathMakeRef(application.path(), nullptr), paramErr);
    bool isDirectory = false;
    EXPECT_EQ(FSPathMakeRef(application.path(), &reference, &isDirectory), noErr);
    EXPECT_EQ(reference.path, application.path());
    EXPECT_TRUE(isDirectory);
    EXPECT_EQ(FSPathMakeRef(application.program(), &reference, &isDirectory), noErr);
    EXPECT_FALSE(isDirectory);
}
