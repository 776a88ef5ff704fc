// Where a program that really crashes leaves its log, and where it leaves none.

#include "CrashProgram.h"

#include <sys/stat.h>

namespace {

const QString separator = QStringLiteral("\n\n**********\n\n");

class CrashLogFile : public testing::Test
{
protected:
    static uint modeOf(const QString &path)
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
        return status.st_mode & 07777;
    }

    CrashProgram program;
};

} // namespace

TEST_F(CrashLogFile, isAddedToTheFileAfterASeparator)
{
    program.crash("null");
    EXPECT_TRUE(program.log().startsWith("Process:"));
    const QString first = program.log();
    program.crash("abort");
    ASSERT_TRUE(program.log().startsWith(first + separator + "Process:"));
    EXPECT_EQ(program.log().count(separator), 1);
    EXPECT_EQ(program.files(), QStringList("crash.crash.log"));
}

TEST_F(CrashLogFile, isAFileOfItsOwnWhereTheSystemHasItSo)
{
    CrashProgram each(CrashProgram::Form::FileForEach);
    each.crash("null");
    each.crash("abort");
    ASSERT_EQ(each.files().size(), 2);
    for (const QString &file : each.files()) {
        EXPECT_TRUE(file.startsWith("crash_") && file.endsWith(".crash")) << file.toStdString();
        const QByteArray content = CrashProgram::contentOf(each.folder() + file);
        EXPECT_TRUE(content.startsWith("Process:"));
        EXPECT_FALSE(content.contains("**********"));
    }
}

TEST_F(CrashLogFile, andItsFolderAreTheUsersAlone)
{
    program.crash("null");
    EXPECT_EQ(modeOf(program.oneFile()), 0600U);
    for (const char *folder : {"/Library", "/Library/Logs", "/Library/Logs/Here"})
        EXPECT_EQ(modeOf(program.home() + folder), 0700U) << folder;
}

TEST_F(CrashLogFile, closesAFileThatWasOpenToOthersAndLeavesFoldersAsTheyAre)
{
    ASSERT_TRUE(QDir().mkpath(program.folder()));
    QFile file(program.oneFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(::chmod(QFile::encodeName(program.oneFile()).constData(), 0644), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(program.folder()).constData(), 0755), 0);
    program.crash("null");
    EXPECT_EQ(modeOf(program.oneFile()), 0600U);
    EXPECT_EQ(modeOf(program.folder()), 0755U);
    EXPECT_TRUE(program.log().startsWith("Process:")) << "no separator in an empty file";
}

TEST_F(CrashLogFile, isNotThereBeforeTheFirstCrash)
{
    EXPECT_EQ(program.crash("other-handler"), -5) << "who handles a signal already keeps it";
    EXPECT_FALSE(QFileInfo::exists(program.home() + "/Library"));
}

TEST_F(CrashLogFile, isNotWrittenForACopyOfTheProgramThatIsAboutToBecomeAnother)
{
    EXPECT_EQ(program.crash("child"), -SIGSEGV);
    EXPECT_FALSE(QFileInfo::exists(program.home() + "/Library"));
}

TEST_F(CrashLogFile, isWrittenOnceWhenThreadsCrashTogether)
{
    for (int round = 0; round < 20; ++round) {
        EXPECT_EQ(program.crash("threads"), SIGSEGV);
        ASSERT_EQ(program.lines().filter("Process: ").size(), round + 1);
        ASSERT_EQ(program.lines().filter("/libc.so.6").size(), round + 1) << "each to its end";
    }
}

TEST_F(CrashLogFile, isGivenUpWhereThereIsNoRoomForIt)
{
    EXPECT_EQ(program.crash("file-size"), SIGSEGV);
    EXPECT_EQ(CrashProgram::contentOf(program.oneFile()), "");
}

TEST_F(CrashLogFile, isGivenUpWhereTheHomeFolderIsMissing)
{
    ASSERT_TRUE(QDir(program.home()).removeRecursively());
    EXPECT_EQ(program.crash("null"), SIGSEGV);
    EXPECT_FALSE(QFileInfo::exists(program.home()));
}

TEST_F(CrashLogFile, isNotWrittenIntoAPipeOrALink)
{
    const QString other = program.home() + "/other";
    ASSERT_TRUE(QDir().mkpath(program.folder()));
    ASSERT_TRUE(QFile(other).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link(other, program.oneFile()));
    EXPECT_EQ(program.crash("null"), SIGSEGV);
    EXPECT_EQ(CrashProgram::contentOf(other), "");
    QFile::remove(program.oneFile());
    ASSERT_EQ(::mkfifo(QFile::encodeName(program.oneFile()).constData(), 0600), 0);
    EXPECT_EQ(program.crash("null"), SIGSEGV);
}
