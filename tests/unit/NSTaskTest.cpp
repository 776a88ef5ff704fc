#include "TestApplication.h"
#include "Wait.h"

#include "platform/foundation/NSException.h"
#include "platform/foundation/processes/NSTask.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Task : public testing::Test
{
protected:
    Task() : bundle(QStringLiteral("Sample.prefPane"))
    {
        // Reads its input to the end, then writes its arguments and its environment's word down.
        bundle.writeScript(QStringLiteral("program"),
            "cat >/dev/null\n"
            "printf '%s\\n' \"$@\" \"$LUMAROO_HOST_EXECUTABLE\" >\"$0.new\"\n"
            "mv \"$0.new\" \"$0.done\"\n");
    }

    QString program() const { return bundle.path() + QStringLiteral("/program"); }
    bool isDone() const { return QFile::exists(program() + QStringLiteral(".done")); }

    QStringList written()
    {
        EXPECT_TRUE(waitUntil([this] { return isDone(); }));
        QFile file(program() + QStringLiteral(".done"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).trimmed().split(u'\n');
    }

    void launchWithPipe()
    {
        NSTask task;
        task.setLaunchPath(program());
        task.setStandardInput(NSPipe::pipe());
        task.launch();
    }

    /// A process that launches the program, starts another that lives on, and stays until it is killed.
    pid_t launchingProcess()
    {
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        const pid_t process = ::fork();
        if (process == 0) {
            launchWithPipe();
            if (::fork() == 0)
                ::execl(qPrintable(TestApplication::idleProgram()), "idle", nullptr);
            [[maybe_unused]] const ssize_t written = ::write(ends[1], "x", 1);
            for (;;)
                ::pause();
        }
        char ready = 0;
        EXPECT_EQ(::read(ends[0], &ready, 1), 1);
        ::close(ends[0]);
        ::close(ends[1]);
        return process;
    }

    TestBundle bundle;
};

} // namespace

TEST_F(Task, runsTheProgramWithItsArgumentsAndNamesThisProgramToIt)
{
    NSTask task;
    task.setLaunchPath(program());
    task.setArguments({QStringLiteral("a path with blanks"), QStringLiteral("No")});
    task.launch();
    const QStringList expected{QStringLiteral("a path with blanks"), QStringLiteral("No"),
        QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))};
    EXPECT_EQ(written(), expected);
}

TEST_F(Task, theProgramSeesTheEndOfItsInputWhenTheLaunchingProcessIsKilled)
{
    const pid_t process = launchingProcess();
    EXPECT_FALSE(isDone()) << "the task object is long gone";
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
    EXPECT_EQ(written().size(), 1);
}

TEST_F(Task, theProgramWaitsForAsLongAsTheLaunchingProcessLives)
{
    launchWithPipe();
    // Another program runs from start to end meanwhile.
    EXPECT_EQ(
        QProcess::execute(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("cat /proc/self/stat")}), 0);
    EXPECT_FALSE(isDone());
}

TEST_F(Task, aProgramThatCannotBeRunIsAnExceptionAndLeavesNothingOpen)
{
    const auto openFiles = [] { return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System).size(); };
    const qsizetype before = openFiles();
    QFile::setPermissions(program(), QFile::ReadOwner);
    EXPECT_THROW(launchWithPipe(), NSException);
    EXPECT_EQ(openFiles(), before);
    ASSERT_TRUE(QFile::remove(program()));
    EXPECT_THROW(launchWithPipe(), NSException);
}
