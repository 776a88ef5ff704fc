#include "PaneBundle.h"
#include "TestApplication.h"
#include "Wait.h"

#include "platform/foundation/NSException.h"
#include "platform/foundation/processes/NSTask.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool isForWriting(const QString &descriptorInfo)
{
    const QStringList flags = linesOf(descriptorInfo).filter(QRegularExpression(QStringLiteral("^flags:")));
    return (flags.value(0).section(u'\t', 1).toInt(nullptr, 8) & O_ACCMODE) == O_WRONLY;
}

class Task : public testing::Test
{
protected:
    Task() : bundle(QStringLiteral("Sample.prefPane"))
    {
        // Writes down what its input is and reads it to the end, then writes down its arguments and its environment's
        // word.
        bundle.writeScript(QStringLiteral("program"),
            "readlink /proc/$$/fd/0 >\"$0.input.new\"\n"
            "mv \"$0.input.new\" \"$0.input\"\n"
            "cat >/dev/null\n"
            "printf '%s\\n' \"$@\" \"$LUMAROO_HOST_EXECUTABLE\" >\"$0.new\"\n"
            "mv \"$0.new\" \"$0.done\"\n");
    }

    QString program() const { return bundle.path() + QStringLiteral("/program"); }
    bool isDone() const { return QFile::exists(program() + QStringLiteral(".done")); }

    QStringList written() const { return fileOf(QStringLiteral(".done")); }
    /// Whether a process holds the write end of the pipe that the program reads from.
    bool holdsWriteEnd(pid_t process) const
    {
        const QString input = fileOf(QStringLiteral(".input")).value(0);
        EXPECT_TRUE(input.startsWith(QStringLiteral("pipe:")));
        const QString folder = QStringLiteral("/proc/%1/").arg(process);
        const QStringList descriptors = QDir(folder + QStringLiteral("fd")).entryList(QDir::System);
        return std::any_of(descriptors.begin(), descriptors.end(), [&](const QString &descriptor) {
            return QFile::symLinkTarget(folder + QStringLiteral("fd/") + descriptor).endsWith(input)
                && isForWriting(folder + QStringLiteral("fdinfo/") + descriptor);
        });
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

private:
    /// What the program has written down, once it has.
    QStringList fileOf(const QString &suffix) const
    {
        EXPECT_TRUE(waitUntil([&] { return QFile::exists(program() + suffix); }));
        return linesOf(program() + suffix);
    }
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
    EXPECT_TRUE(holdsWriteEnd(process)) << "the task object is long gone";
    EXPECT_FALSE(isDone());
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
    EXPECT_EQ(written().size(), 1);
}

TEST_F(Task, theProgramWaitsForAsLongAsTheLaunchingProcessLives)
{
    launchWithPipe();
    EXPECT_TRUE(holdsWriteEnd(::getpid()));
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
