#include "crashreporter/NewCrashReport.h"

#include "KTXConstants.h"
#include "crashreporter/CrashRecord.h"
#include "crashreporter/QBAppBundle.h"
#include "crashreporter/QBCheckForCrash.h"
#include "crashreporter/QBCrashReporter.h"
#include "crashreporter/QBSystemInformation.h"
#include "crashreporter/ReportParts.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/crashlogs/CrashLogPlace.h"
#include "platform/foundation/files/FileContent.h"
#include "platform/foundation/files/NSDirectoryEnumerator.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/CFTypeID.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

namespace {

constexpr qint64 mostOfALog = qint64(256) * 1024 * 1024; // bytes
constexpr qsizetype mostOfARecord = qsizetype(1024) * 1024; // characters
const QString namesThePane = QStringLiteral("PlugIn Identifier: ") + KTXLMAppID;

QString logPath()
{
    quint32 major = 0;
    quint32 minor = 0;
    quint32 bugFix = 0;
    QBGetSystemVersionComponents(&major, &minor, &bugFix);
    const CrashLogPlace place = crashLogPlace(major, minor);
    const QString folder = QDir::homePath() + u'/' + place.folder;
    const QString application =
        NSBundle::mainBundle()->infoDictionary().value(QStringLiteral("CFBundleExecutable")).toString();
    return place.form == CrashLogPlace::Form::FileForEach
        ? QBCrashReporterFindTenFiveCrashReportPath(application, folder)
        : folder + application + QStringLiteral(".crash.log");
}

std::optional<QDateTime> dateOfLog(const QString &path)
{
    const auto date = fileModificationDate(QFile::encodeName(path));
    if (path.isNull() || !date)
        return std::nullopt;
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(*date).count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

/// Up to when crashes have been dealt with: up to now, where nothing else has been said.
QDateTime rememberedDate()
{
    const QVariant stored = CFPreferencesCopyAppValue(QBCrashReporterLastCrashReportDate, KTXLMAppID);
    if (CFGetTypeID(stored) == CFTypeID::Date)
        return stored.toDateTime();
    const QDateTime now = QDateTime::currentDateTimeUtc();
    CFPreferencesSetAppValue(QBCrashReporterLastCrashReportDate, now, KTXLMAppID);
    return now;
}

/// Of a log that is too large, its end.
QString recordOf(const QString &path)
{
    const auto log = lastBytesOfFile(QFile::encodeName(path), mostOfALog);
    if (!log)
        return QStringLiteral("*** Couldn't read Report ***");
    return lastCrashRecord(log->size() < mostOfALog ? *log : fromWholeCharacter(*log));
}

QString reportWith(const QString &record)
{
    return QStringLiteral("Model: %1\nCPU Speed: %2 GHz\n%3\n\nPreferences:\n%4")
        .arg(reportedMachine(), reportedProcessorSpeed(), record, reportedPreferences(QBReportedBundle()));
}

} // namespace

std::optional<QString> newCrashReport()
{
    const QString path = logPath();
    const std::optional<QDateTime> date = dateOfLog(path);
    const QDateTime remembered = rememberedDate();
    if (!date || remembered >= *date)
        return std::nullopt;
    const QString record = recordOf(path);
    const QString report = reportWith(shortenedCrashRecord(record, mostOfARecord));
    if (QBRunsInSettings() && !record.contains(namesThePane) && !report.contains(namesThePane))
        return std::nullopt;
    return report;
}
