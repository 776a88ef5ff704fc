// What the pane's check for a crash of the settings comes to. This test's program is the settings application.

#include "CrashLogFolders.h"
#include "TestBundle.h"

#include "KTXConstants.h"
#include "crashreporter/NewCrashReport.h"
#include "crashreporter/ProcessorSpeed.h"
#include "crashreporter/QBCheckForCrash.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QDateTime>
#include <gmock/gmock.h>
#include <unistd.h>

using testing::HasSubstr;

namespace {

const QByteArray separator = "\n\n**********\n\n";
const QByteArray ofThePane = "PlugIn Identifier: com.quorvane.Lumaroo\n";

QVariant stored()
{
    return CFPreferencesCopyAppValue(QBCrashReporterLastCrashReportDate, KTXLMAppID);
}

void store(const QVariant &value)
{
    CFPreferencesSetAppValue(QBCrashReporterLastCrashReportDate, value, KTXLMAppID);
}

QDateTime at(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

/// The pane's bundle lives as long as the process, as it does in the settings.
const TestBundle &paneBundle()
{
    static const TestBundle bundle("Lumaroo.prefPane");
    bundle.writeInfo({{"CFBundleIdentifier", KTXLMAppID}});
    NSBundle::bundleWithPath(bundle.path());
    return bundle;
}

class CrashCheck : public CrashLogFolders
{
protected:
    CrashCheck()
    {
        paneBundle();
        store(at(1'000'000));
    }

    QString oneFile() const { return reporterFolder() + "tested.crash.log"; }
    void putNewLog(const QByteArray &content) const { put(oneFile(), content, 2000); }
    /// Reading them logs a line.
    void putDamagedSettings() const
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home() + "/damaged"));
        put(home() + "/damaged/lumaroo/com.quorvane.Lumaroo.plist", "no property list");
    }
    static QString report() { return newCrashReport().value_or("(none)"); }
    static bool isOffered() { return newCrashReport().has_value(); }
};

} // namespace

TEST_F(CrashCheck, fillsTheReport)
{
    putSystemFile("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq", "1400000\n");
    putSystemFile("/sys/devices/system/cpu/online", "0-1\n");
    putNewLog("old" + separator + ofThePane + "new %1 %2\n");
    store(at(1'000'000));
    EXPECT_EQ(report(),
        "Model: (null)\nCPU Speed: 2x 1.40 GHz\nPlugIn Identifier: com.quorvane.Lumaroo\nnew %1 %2\n\n\nPreferences:\n"
        "{\n    QBCrashReporterLastCrashReportDate = \"1970-01-01 00:16:40 +0000\";\n}");
}

TEST(ProcessorSpeed, isInGigahertzWithTheNumberOfCores)
{
    EXPECT_EQ(processorSpeed(1, 2400), "2.40");
    EXPECT_EQ(processorSpeed(2, 2400), "2x 2.40");
    EXPECT_EQ(processorSpeed(0, 0), "0x 0.00");
    EXPECT_EQ(processorSpeed(quint32(-2), 0), "-2x 0.00") << "the count is printed as a signed number";
    EXPECT_EQ(processorSpeed(1, quint32(-1894)), "4294965.50") << "the clock as one without a sign";
    EXPECT_EQ(processorSpeed(1, 1065), "1.07") << "in single precision";
}

TEST_F(CrashCheck, remembersTheTimeOfTheFirstOneAndOffersNothingOld)
{
    store(QVariant());
    putNewLog(ofThePane);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    EXPECT_FALSE(isOffered());
    EXPECT_GE(stored().toDateTime(), before);
    EXPECT_LE(stored().toDateTime(), QDateTime::currentDateTimeUtc());
    EXPECT_FALSE(QFile::exists(qEnvironmentVariable("XDG_CONFIG_HOME") + "/lumaroo/com.quorvane.Lumaroo.plist"))
        << "it is written with the next flush";
}

TEST_F(CrashCheck, remembersTheTimeAlsoWhereThereIsNoLog)
{
    store(QVariant());
    EXPECT_FALSE(isOffered());
    EXPECT_TRUE(stored().isValid());
}

TEST_F(CrashCheck, offersACrashAfterTheFirstCheck)
{
    store(QVariant());
    EXPECT_FALSE(isOffered());
    put(oneFile(), ofThePane, QDateTime::currentSecsSinceEpoch() + 10);
    EXPECT_TRUE(isOffered());
    EXPECT_TRUE(isOffered()) << "again at each check, until it has been dealt with";
}

TEST_F(CrashCheck, takesARememberedDateThatIsNoDateForNone)
{
    for (const QVariant &wrong : {QVariant("2001-01-01"), QVariant(1000), QVariant(true), QVariant(QVariantMap())}) {
        store(wrong);
        putNewLog(ofThePane);
        EXPECT_FALSE(isOffered());
        EXPECT_GT(stored().toDateTime(), at(1'000'000'000'000)) << wrong.typeName();
    }
}

TEST_F(CrashCheck, offersOnlyWhatIsLaterThanTheRememberedDate)
{
    store(at(2'000'500));
    put(oneFile(), ofThePane, 2000, 499'000'000);
    EXPECT_FALSE(isOffered());
    setDate(oneFile(), 2000, 500'000'000);
    EXPECT_FALSE(isOffered()) << "the same";
    setDate(oneFile(), 2000, 501'000'000);
    EXPECT_TRUE(isOffered());
}

TEST_F(CrashCheck, passesOverACrashOfAnotherPaneOrOfTheSettingsAlone)
{
    putNewLog("Process: tested\n");
    EXPECT_FALSE(isOffered());
    putNewLog("PlugIn Identifier: com.example.other\n");
    EXPECT_FALSE(isOffered());
    putNewLog(ofThePane + separator + "Process: tested\n");
    EXPECT_FALSE(isOffered()) << "only the last record counts";
    putNewLog(ofThePane);
    EXPECT_TRUE(isOffered());
}

TEST_F(CrashCheck, passesOverALogThatCannotBeReadSinceItDoesNotNameThePane)
{
    putNewLog(ofThePane);
    ASSERT_EQ(::chmod(QFile::encodeName(oneFile()).constData(), 0), 0);
    EXPECT_FALSE(isOffered());
}

TEST_F(CrashCheck, looksInThePlaceOfTheSystemsVersion)
{
    put(reporterFolder() + "tested.crash.log", ofThePane + "one file", 2000);
    put(reporterFolder() + "tested_1.crash", ofThePane + "reporter", 2000);
    put(diagnosticsFolder() + "tested_1.crash", ofThePane + "diagnostics", 2000);
    const std::pair<const char *, const char *> versions[] = {{"10.4.11", "one file"}, {"10.5", "reporter"},
        {"10.6", "diagnostics"}, {"12", "one file"}, {"22.04", "one file"}, {"24.10", "diagnostics"},
        {"9.9", "one file"}, {"unknown", "one file"}};
    for (const auto &[version, text] : versions) {
        setSystemVersion(version);
        EXPECT_THAT(report().toStdString(), HasSubstr(text)) << version;
    }
}

TEST_F(CrashCheck, passesOverLogsOfOtherPrograms)
{
    setSystemVersion("10.6");
    put(diagnosticsFolder() + "other_1.crash", ofThePane, 3000);
    EXPECT_FALSE(isOffered());
    setSystemVersion("12");
    put(reporterFolder() + "other.crash.log", ofThePane, 3000);
    EXPECT_FALSE(isOffered());
}

TEST_F(CrashCheck, takesAFolderInTheLogsPlaceForOneThatCannotBeRead)
{
    setSystemVersion("10.6");
    put(diagnosticsFolder() + "tested_1.crash/file", "", 3000);
    CFPreferencesSetAppValue("note", "PlugIn Identifier: com.quorvane.Lumaroo", KTXLMAppID);
    EXPECT_THAT(report().toStdString(), HasSubstr("GHz\n*** Couldn't read Report ***\n\nPreferences:\n"));
}

TEST_F(CrashCheck, findsTheRecordAtTheEndOfALogThatIsTooLarge)
{
    const QString path = oneFile();
    putNewLog("");
    ASSERT_EQ(::truncate(QFile::encodeName(path).constData(), off_t(300) * 1024 * 1024), 0);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(separator + ofThePane + "\xc3\xa4");
    file.close();
    setDate(path, 2000);
    EXPECT_THAT(report().toStdString(), HasSubstr(" GHz\n" + ofThePane.toStdString() + "\xc3\xa4\n\nPreferences:"));
}

TEST_F(CrashCheck, showsOfALongRecordItsBeginningAndSaysSo)
{
    const qsizetype most = qsizetype(1024) * 1024;
    putNewLog(ofThePane + QByteArray(most, 'x'));
    EXPECT_THAT(report().toStdString(),
        HasSubstr(
            "xxx\n*** " + std::to_string(ofThePane.size()) + " more characters are left out ***\n\nPreferences:"));
    EXPECT_LT(report().size(), most + 1000);
    putNewLog(QByteArray(most, 'x') + ofThePane);
    EXPECT_TRUE(isOffered()) << "it names the pane where it is not shown";
}

TEST_F(CrashCheck, findsTheRecordInALogOf200Mebibytes)
{
    putNewLog(QByteArray(200 * 1024 * 1024, 'x') + separator + ofThePane);
    EXPECT_THAT(report().toStdString(), HasSubstr(" GHz\nPlugIn Identifier: com.quorvane.Lumaroo\n\n\nPref"));
}

TEST_F(CrashCheck, changesNothingButTheDate)
{
    store(QVariant());
    putNewLog(ofThePane);
    newCrashReport();
    const QVariantMap domain = NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID);
    EXPECT_EQ(domain.keys(), QStringList(QBCrashReporterLastCrashReportDate));
}

TEST_F(CrashCheck, logsAnExceptionOfThePlatformsAndGoesOn)
{
    putDamagedSettings();
    QStringList lines;
    const LogWriter before = setLogWriter([&](const QString &line) {
        lines += line;
        if (line.contains("does not parse"))
            throw NSException("NSRangeException", "what happened");
    });
    QBCrashReporterCheckForCrash();
    setLogWriter(before);
    EXPECT_EQ(lines.value(1), "Error during check for crash: what happened");
    EXPECT_EQ(lines.size(), 2);
}

TEST_F(CrashCheck, passesOnWhatIsNoExceptionOfThePlatforms)
{
    putDamagedSettings();
    QStringList lines;
    const LogWriter before = setLogWriter([&](const QString &line) {
        lines += line;
        if (line.contains("does not parse"))
            throw std::runtime_error("another");
    });
    EXPECT_THROW(QBCrashReporterCheckForCrash(), std::runtime_error);
    setLogWriter(before);
    EXPECT_EQ(lines.size(), 1) << "nothing is logged of it";
}
