// Where crash logs lie, and how many of them stay.

#include "CapturedLog.h"

#include "platform/foundation/crashlogs/CrashLogPlace.h"
#include "platform/foundation/crashlogs/internal/CrashLogFiles.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

const QByteArray separator = "\n\n**********\n\n";

QByteArray recordsFromTo(int first, int last)
{
    QByteArrayList records;
    for (int i = first; i <= last; ++i)
        records += "record " + QByteArray::number(i) + "\n";
    return records.join(separator);
}

class CrashLogFiles : public testing::Test
{
protected:
    QString pathOf(const QString &name) const { return folder.filePath(name); }
    void put(const QString &name, const QByteArray &content, qint64 seconds = 1'000'000) const
    {
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        ASSERT_TRUE(file.flush());
        const timespec dates[] = {{seconds, 0}, {seconds, 123'456'789}};
        ASSERT_EQ(::futimens(file.handle(), dates), 0);
    }
    QByteArray content(const QString &name) const
    {
        QFile file(pathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    struct stat statusOf(const QString &name) const
    {
        struct stat status = {};
        EXPECT_EQ(::stat(QFile::encodeName(pathOf(name)).constData(), &status), 0);
        return status;
    }
    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System); }

    QTemporaryDir folder;
    CapturedLog log;
};

struct Place
{
    quint32 major;
    quint32 minor;
    const char *folder;
    CrashLogPlace::Form form;
};

} // namespace

TEST(CrashLogPlace, followsFromTheSystemsVersion)
{
    constexpr auto oneFile = CrashLogPlace::Form::OneFile;
    constexpr auto fileForEach = CrashLogPlace::Form::FileForEach;
    const char *reporter = "Library/Logs/CrashReporter/";
    const char *diagnostics = "Library/Logs/DiagnosticReports/";
    const Place places[] = {
        {0, 0, reporter, oneFile},
        {9, 9, reporter, oneFile},
        {10, 0, reporter, oneFile},
        {10, 4, reporter, oneFile},
        {10, 5, reporter, fileForEach},
        {10, 6, diagnostics, fileForEach},
        {10, 15, diagnostics, fileForEach},
        {11, 0, reporter, oneFile},
        {12, 0, reporter, oneFile},
        {22, 4, reporter, oneFile},
        {22, 5, reporter, fileForEach},
        {22, 10, diagnostics, fileForEach},
    };
    for (const Place &place : places)
        EXPECT_EQ(crashLogPlace(place.major, place.minor), (CrashLogPlace{place.folder, place.form}))
            << place.major << '.' << place.minor;
}

TEST_F(CrashLogFiles, keepTheLastOnesOfAProgram)
{
    for (int i = 10; i < 35; ++i)
        put(QStringLiteral("program_%1.crash").arg(i), "", i);
    put("program_00.crash", "", 1000);
    put("program.crash.log", "", 1);
    put("program_other.txt", "", 1);
    put("other_1.crash", "", 1);
    put("Program_1.crash", "", 1);
    QDir(folder.path()).mkdir("program_folder.crash");
    keepLastLogs(folder.path() + '/', "program", 20);
    QStringList expected{"other_1.crash", "program.crash.log", "program_00.crash", "Program_1.crash"};
    for (int i = 16; i < 35; ++i)
        expected += QStringLiteral("program_%1.crash").arg(i);
    EXPECT_EQ(names(), expected + QStringList("program_other.txt"));
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(CrashLogFiles, areLeftAloneWhereThereAreNotMore)
{
    for (int i = 10; i < 30; ++i)
        put(QStringLiteral("program_%1.crash").arg(i), "", i);
    keepLastLogs(folder.path() + '/', "program", 20);
    EXPECT_EQ(names().size(), 20);
    keepLastLogs(folder.path() + "/missing/", "program", 20);
}

TEST_F(CrashLogFiles, thatCannotBeRemovedAreToldOfOnce)
{
    for (int i = 10; i < 35; ++i)
        put(QStringLiteral("program_%1.crash").arg(i), "", i);
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0500), 0);
    keepLastLogs(folder.path() + '/', "program", 20);
    ::chmod(QFile::encodeName(folder.path()).constData(), 0700);
    EXPECT_EQ(names().size(), 25);
    EXPECT_EQ(log.linesContaining("stays as it is").size(), 1);
}

TEST_F(CrashLogFiles, ofOneFileKeepItsLastRecordsAndItsDate)
{
    put("program.crash.log", recordsFromTo(1, 25));
    const struct stat before = statusOf("program.crash.log");
    keepLastRecords(pathOf("program.crash.log"), 20);
    EXPECT_EQ(content("program.crash.log"), recordsFromTo(6, 25));
    const struct stat after = statusOf("program.crash.log");
    EXPECT_EQ(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
    EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    EXPECT_EQ(after.st_mode & 07777, 0600U);
    EXPECT_EQ(names(), QStringList("program.crash.log"));
}

TEST_F(CrashLogFiles, ofOneFileStayAsTheyAreWhereThereAreNotMore)
{
    put("program.crash.log", recordsFromTo(1, 20));
    const struct stat before = statusOf("program.crash.log");
    keepLastRecords(pathOf("program.crash.log"), 20);
    EXPECT_EQ(content("program.crash.log"), recordsFromTo(1, 20));
    EXPECT_EQ(statusOf("program.crash.log").st_ino, before.st_ino) << "it is not written anew";
    keepLastRecords(pathOf("missing.crash.log"), 20);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(CrashLogFiles, ofOneFileMayBeLargerThanWhatIsReadAtOnce)
{
    // Separators fall on every place of what is read at once.
    for (const int size : {1000, 65522, 65523, 65529, 65535, 65536, 200000}) {
        const QByteArray record = QByteArray(size, 'x') + separator;
        put("program.crash.log", record.repeated(4) + "last");
        keepLastRecords(pathOf("program.crash.log"), 3);
        EXPECT_EQ(content("program.crash.log"), record.repeated(2) + "last") << size;
    }
}

TEST_F(CrashLogFiles, ofOneFileMayBeEmptyAtTheirEnds)
{
    put("program.crash.log", separator + "a" + separator);
    keepLastRecords(pathOf("program.crash.log"), 2);
    EXPECT_EQ(content("program.crash.log"), "a" + separator);
    keepLastRecords(pathOf("program.crash.log"), 1);
    EXPECT_EQ(content("program.crash.log"), "");
    keepLastRecords(pathOf("program.crash.log"), 1);
    EXPECT_EQ(content("program.crash.log"), "");
}

TEST_F(CrashLogFiles, behindALinkAreLeftAlone)
{
    put("other", recordsFromTo(1, 25));
    ASSERT_TRUE(QFile::link(pathOf("other"), pathOf("program.crash.log")));
    keepLastRecords(pathOf("program.crash.log"), 20);
    EXPECT_EQ(content("other"), recordsFromTo(1, 25));
}

TEST_F(CrashLogFiles, ofOneFileThatCannotBeReplacedAreToldOfOnce)
{
    put("program.crash.log", recordsFromTo(1, 25));
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0500), 0);
    keepLastRecords(pathOf("program.crash.log"), 20);
    ::chmod(QFile::encodeName(folder.path()).constData(), 0700);
    EXPECT_EQ(content("program.crash.log"), recordsFromTo(1, 25));
    EXPECT_EQ(log.linesContaining("stays as it is").size(), 1);
}
