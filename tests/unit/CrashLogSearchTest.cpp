// Which of the logs in a folder is an application's newest.

#include "CrashLogFolders.h"

#include "crashreporter/QBCheckForCrash.h"

#include <dirent.h>
#include <unistd.h>

namespace {

class CrashLogSearch : public CrashLogFolders
{
protected:
    CrashLogSearch() { QDir().mkpath(folder()); }

    QString folder() const { return diagnosticsFolder(); }
    void putLog(const QString &name, qint64 seconds, long nanoseconds = 0) const
    {
        put(folder() + name, "", seconds, nanoseconds);
    }
    QString found() const { return QBCrashReporterFindTenFiveCrashReportPath("app", folder()); }
    /// Without the folder.
    QString foundName() const { return found().mid(folder().size()); }
};

} // namespace

TEST_F(CrashLogSearch, findsTheNewestOfTheApplication)
{
    putLog("app_1.crash", 100);
    putLog("app_2.crash", 300);
    putLog("app_3.crash", 200);
    EXPECT_EQ(found(), folder() + "app_2.crash");
}

TEST_F(CrashLogSearch, passesOverWhatHasAnotherName)
{
    putLog("app_1.crash", 100);
    for (const char *name : {"application_1.crash", "app.crash", "App_1.crash", "app_1.crash.log", "app_1.Crash",
             "other_app_1.crash", "app-1.crash", ".app_1.crash"})
        putLog(name, 200);
    EXPECT_EQ(foundName(), "app_1.crash");
}

TEST_F(CrashLogSearch, takesTheShortestNameThereIs)
{
    putLog("app_.crash", 100);
    EXPECT_EQ(foundName(), "app_.crash");
}

TEST_F(CrashLogSearch, findsNothingWhereThereIsNothing)
{
    EXPECT_TRUE(found().isNull());
    EXPECT_TRUE(QBCrashReporterFindTenFiveCrashReportPath("app", folder() + "missing/").isNull());
    putLog("file", 1);
    EXPECT_TRUE(QBCrashReporterFindTenFiveCrashReportPath("app", folder() + "file").isNull());
}

TEST_F(CrashLogSearch, joinsAFolderWithoutASlash)
{
    putLog("app_1.crash", 100);
    EXPECT_EQ(QBCrashReporterFindTenFiveCrashReportPath("app", folder().chopped(1)), folder() + "app_1.crash");
}

TEST_F(CrashLogSearch, goesByDatesToTheNanosecond)
{
    putLog("app_a.crash", 100, 5);
    putLog("app_b.crash", 100, 6);
    putLog("app_c.crash", 100, 4);
    EXPECT_EQ(foundName(), "app_b.crash");
}

TEST_F(CrashLogSearch, takesTheFirstThatItMeetsOfEqualDates)
{
    for (int i = 0; i < 20; ++i)
        putLog(QStringLiteral("app_%1.crash").arg(i), 100);
    DIR *opened = ::opendir(QFile::encodeName(folder()).constData());
    QString first;
    while (const dirent *entry = first.isEmpty() ? ::readdir(opened) : nullptr) {
        if (entry->d_name[0] != '.')
            first = QString::fromUtf8(entry->d_name);
    }
    ::closedir(opened);
    EXPECT_EQ(foundName(), first);
}

TEST_F(CrashLogSearch, goesIntoFoldersWhosePathsBeginLikeThis)
{
    putLog("app_1.crash", 100);
    putLog("app_old/anything.crash", 300);
    putLog("app_old/deeper/other.crash", 400);
    putLog("app_old/deeper/other.txt", 500);
    putLog("other/app_2.crash", 500);
    EXPECT_EQ(foundName(), "app_old/deeper/other.crash");
}

TEST_F(CrashLogSearch, takesAFolderOfThatNameForALog)
{
    putLog("app_1.crash", 100);
    putLog("app_2.crash/file", 100);
    setDate(folder() + "app_2.crash", 200);
    EXPECT_EQ(foundName(), "app_2.crash");
}

TEST_F(CrashLogSearch, goesByALinksOwnDateAndDoesNotFollowIt)
{
    putLog("app_1.crash", 100);
    putLog("other", 300);
    QFile::link(folder() + "other", folder() + "app_2.crash");
    setDate(folder() + "app_2.crash", 50);
    put(home() + "/elsewhere/a.crash", "", 400);
    QFile::link(home() + "/elsewhere", folder() + "app_link");
    QFile::link(folder(), folder() + "app_loop");
    EXPECT_EQ(foundName(), "app_1.crash");
}

TEST_F(CrashLogSearch, findsNamesWithLineEndsAndBlanks)
{
    putLog("app_a\n**\n b.crash", 200);
    putLog("app_1.crash", 100);
    EXPECT_EQ(foundName(), "app_a\n**\n b.crash");
}

TEST_F(CrashLogSearch, passesOverANameThatIsNoText)
{
    putLog("app_1.crash", 100);
    const QByteArray path = QFile::encodeName(folder()) + "app_\xff.crash";
    const int descriptor = ::open(path.constData(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(descriptor, 0);
    ::close(descriptor);
    EXPECT_EQ(foundName(), "app_1.crash");
}

TEST_F(CrashLogSearch, passesOverFoldersThatItMayNotRead)
{
    putLog("app_1.crash", 100);
    putLog("app_closed/a.crash", 300);
    const QByteArray closed = QFile::encodeName(folder() + "app_closed");
    ASSERT_EQ(::chmod(closed.constData(), 0), 0);
    EXPECT_EQ(foundName(), "app_1.crash");
    // Names may be read, but nothing of the files.
    ASSERT_EQ(::chmod(closed.constData(), 0400), 0);
    EXPECT_EQ(foundName(), "app_1.crash");
    ::chmod(closed.constData(), 0700);
    EXPECT_EQ(foundName(), "app_closed/a.crash");
}

TEST_F(CrashLogSearch, findsNothingInAFolderThatItMayNotRead)
{
    putLog("app_1.crash", 100);
    const QByteArray closed = QFile::encodeName(folder());
    ASSERT_EQ(::chmod(closed.constData(), 0), 0);
    EXPECT_TRUE(found().isNull());
    ::chmod(closed.constData(), 0700);
}

TEST_F(CrashLogSearch, endsInFoldersWithoutEnd)
{
    QString deep = folder() + "app_";
    for (int i = 0; i < 200; ++i) {
        deep += "/d";
        ASSERT_TRUE(QDir().mkpath(deep));
    }
    put(deep + "/a.crash", "", 300);
    putLog("app_1.crash", 100);
    EXPECT_EQ(foundName(), "app_1.crash");
}

TEST_F(CrashLogSearch, findsOneOfAHundredThousandFiles)
{
    const QByteArray beginning = QFile::encodeName(folder());
    for (int i = 0; i < 100'000; ++i) {
        const QByteArray name = (i % 2 ? "app_" : "other_") + QByteArray::number(i) + ".crash";
        const int descriptor = ::open((beginning + name).constData(), O_CREAT | O_WRONLY, 0600);
        ASSERT_GE(descriptor, 0);
        ::close(descriptor);
    }
    setDate(folder() + "app_77777.crash", 4'000'000'000);
    EXPECT_EQ(foundName(), "app_77777.crash");
}
