#include "crashreporter/QBCheckForCrash.h"

#include "crashreporter/NewCrashReport.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/appkit/web/NSURLConnectionAvailability.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/files/NSDirectoryEnumerator.h"
#include "platform/foundation/system/NSLog.h"

#include <QFile>

namespace {

void checkForCrash()
{
    if (!webRequestsCanBeSent())
        return;
    if (const auto report = newCrashReport())
        QBCrashReporter::initWithLogString(*report);
}

} // namespace

QString QBCrashReporterFindTenFiveCrashReportPath(const QString &applicationName, const QString &folder)
{
    const QByteArray prefix = QFile::encodeName(applicationName) + '_';
    NSDirectoryEnumerator entries(QFile::encodeName(folder));
    QByteArray newest;
    std::chrono::nanoseconds newestDate{};
    while (entries.next()) {
        const bool isOfApplication = entries.pathStartsWith(prefix);
        if (!isOfApplication)
            entries.skipDescendants(); // what lies below begins in the same way
        if (!isOfApplication || !entries.path().endsWith(".crash") || !entries.path().isValidUtf8())
            continue;
        const auto date = entries.modificationDate();
        if (date && (newest.isEmpty() || *date > newestDate)) {
            newest = entries.path();
            newestDate = *date;
        }
    }
    const QString separator = folder.endsWith(u'/') ? QString() : QStringLiteral("/");
    return newest.isEmpty() ? QString() : folder + separator + QFile::decodeName(newest);
}

void QBCrashReporterCheckForCrash()
{
    try {
        checkForCrash();
    } catch (const NSException &exception) {
        NSLog(QStringLiteral("Error during check for crash: ") + exception.reason());
    }
}
