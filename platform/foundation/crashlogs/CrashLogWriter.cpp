#include "platform/foundation/crashlogs/CrashLogWriter.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/crashlogs/CrashLogPlace.h"
#include "platform/foundation/crashlogs/internal/CrashLogFiles.h"
#include "platform/foundation/crashlogs/linux/CrashHandler.h"
#include "platform/foundation/system/RunningExecutable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int mostLogs = 20;
constexpr unsigned mostSeconds = 10;

QString infoText(const char *key)
{
    return NSBundle::mainBundle()->infoDictionary().value(QString::fromLatin1(key)).toString();
}

QString programName()
{
    const QString executable = infoText("CFBundleExecutable");
    return executable.isEmpty() ? QFileInfo(runningExecutablePath()).fileName() : executable;
}

/// As long as the process lives, and not looked for by anybody who looks for leaks.
const char *kept(const QByteArray &text)
{
    static auto *const texts = new QByteArrayList;
    texts->append(text);
    return texts->constLast().constData();
}

} // namespace

void installCrashLogWriter()
{
    const CrashLogPlace place = crashLogPlaceOfSystem();
    installCrashHandler({
        .program = kept(QFile::encodeName(programName())),
        .identifier = kept(NSBundle::mainBundle()->bundleIdentifier().toUtf8()),
        .version = kept(QStringLiteral("%1 (%2)")
                            .arg(infoText("CFBundleShortVersionString"), infoText("CFBundleVersion"))
                            .toUtf8()),
        .home = kept(QFile::encodeName(QDir::homePath())),
        .folder = kept(QFile::encodeName(place.folder)),
        .hasFileForEach = place.form == CrashLogPlace::Form::FileForEach,
        .mostSeconds = mostSeconds,
    });
}

bool nameInCrashLogs(const QString &plugInIdentifier)
{
    const QByteArray identifier = plugInIdentifier.toUtf8();
    return addPlugInToCrashLog(identifier.constData(), size_t(identifier.size()));
}

void doNotNameInCrashLogs(const QString &plugInIdentifier)
{
    const QByteArray identifier = plugInIdentifier.toUtf8();
    removePlugInFromCrashLog(identifier.constData(), size_t(identifier.size()));
}

void trimCrashLogs()
{
    const CrashLogPlace place = crashLogPlaceOfSystem();
    const QString folder = QDir::homePath() + u'/' + place.folder;
    if (place.form == CrashLogPlace::Form::FileForEach)
        keepLastLogs(folder, programName(), mostLogs);
    else
        keepLastRecords(folder + programName() + QStringLiteral(".crash.log"), mostLogs);
}
