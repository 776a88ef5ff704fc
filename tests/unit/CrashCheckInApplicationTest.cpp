// The check for a crash where the program is no settings application but one of its own.

#include "CrashLogFolders.h"

#include "KTXConstants.h"
#include "crashreporter/NewCrashReport.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QDateTime>
#include <gmock/gmock.h>

using testing::EndsWith;
using testing::HasSubstr;

namespace {

class CrashCheckInAnApplication : public CrashLogFolders
{
protected:
    CrashCheckInAnApplication()
    {
        CFPreferencesSetAppValue(
            QBCrashReporterLastCrashReportDate, QDateTime::fromSecsSinceEpoch(1000, Qt::UTC), KTXLMAppID);
    }
    static std::string report() { return newCrashReport().value_or("(none)").toStdString(); }
};

} // namespace

TEST_F(CrashCheckInAnApplication, offersACrashWhicheverPlugInItNames)
{
    put(reporterFolder() + "tested.crash.log", "Process: tested\n", 2000);
    EXPECT_THAT(report(), HasSubstr(" GHz\nProcess: tested\n\n\nPreferences:\n"));
}

TEST_F(CrashCheckInAnApplication, reportsItsOwnPreferences)
{
    CFPreferencesSetAppValue("ours", "a", "com.example.tested");
    CFPreferencesSetAppValue("theirs", "b", KTXLMAppID);
    put(reporterFolder() + "tested.crash.log", "", 2000);
    EXPECT_THAT(report(), EndsWith("\nPreferences:\n{\n    ours = a;\n}"));
}

TEST_F(CrashCheckInAnApplication, saysSoWhereTheLogCannotBeRead)
{
    put(reporterFolder() + "tested.crash.log", "secret", 2000);
    ASSERT_EQ(::chmod(QFile::encodeName(reporterFolder() + "tested.crash.log").constData(), 0), 0);
    EXPECT_THAT(report(), HasSubstr(" GHz\n*** Couldn't read Report ***\n\nPreferences:\n"));
}

TEST_F(CrashCheckInAnApplication, reportsAnEmptyLogAsAnEmptyRecord)
{
    put(reporterFolder() + "tested.crash.log", "", 2000);
    EXPECT_THAT(report(), HasSubstr(" GHz\n\n\nPreferences:\n"));
}

TEST_F(CrashCheckInAnApplication, isNotHeldUpByAPipe)
{
    QDir().mkpath(reporterFolder());
    ASSERT_EQ(::mkfifo(QFile::encodeName(reporterFolder() + "tested.crash.log").constData(), 0600), 0);
    EXPECT_THAT(report(), HasSubstr("*** Couldn't read Report ***"));
}

TEST_F(CrashCheckInAnApplication, findsALogWhereverTheHomeFolderIs)
{
    const QString other = home() + "/ot\u00e4her";
    qputenv("HOME", QFile::encodeName(other));
    put(other + "/Library/Logs/CrashReporter/tested.crash.log", "here", 2000);
    EXPECT_THAT(report(), HasSubstr("here"));
}
