#include "platform/foundation/processes/LaunchServices.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/processes/ApplicationIdentifier.h"
#include "platform/foundation/processes/Processes.h"
#include "platform/foundation/processes/linux/ProgramStart.h"
#include "platform/foundation/system/NSLog.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>

namespace {

OSStatus statusOf(int error)
{
    switch (error) {
    case 0:
        return noErr;
    case EAGAIN:
    case ENOMEM:
    case EMFILE:
    case ENFILE:
    case ECHILD:
        return kLSUnknownErr;
    default:
        return kLSNoExecutableErr;
    }
}

void logFailure(const QString &path, int error)
{
    NSLog(QStringLiteral("lumaroo: launch: %1 cannot be run: %2")
              .arg(path, QString::fromLocal8Bit(std::strerror(error))));
}

ProgramStart startOf(const QString &executable, const QString &identifier, const LSApplicationParameters &parameters)
{
    ProgramStart start{QFile::encodeName(executable), {}, {}};
    for (const QString &argument : parameters.argv)
        start.arguments += QFile::encodeName(argument);
    for (auto entry = parameters.environment.cbegin(); entry != parameters.environment.cend(); ++entry)
        start.environment += QFile::encodeName(entry.key() + u'=' + entry.value());
    start.environment += QByteArray(applicationIdentifierVariable) + '=' + identifier.toUtf8();
    return start;
}

OSStatus launch(const QString &executable, const ProgramStart &start, ProcessSerialNumber *process)
{
    const StartedProgram started = startProgram(start);
    if (started.error != 0)
        logFailure(executable, started.error);
    else if (process)
        *process = {0, quint32(started.process)};
    return statusOf(started.error);
}

} // namespace

OSStatus FSPathMakeRef(const QString &path, FSRef *reference, bool *isDirectory)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists())
        return fnfErr;
    if (!reference)
        return paramErr;
    reference->path = file.absoluteFilePath();
    if (isDirectory)
        *isDirectory = file.isDir();
    return noErr;
}

bool CFURLGetFSRef(const QUrl &url, FSRef *reference)
{
    return url.isLocalFile() && FSPathMakeRef(url.toLocalFile(), reference) == noErr;
}

OSStatus LSOpenApplication(const LSApplicationParameters *parameters, ProcessSerialNumber *process)
{
    if (!parameters || parameters->version != 0 || !parameters->application)
        return paramErr;
    const QString &path = parameters->application->path;
    // As it stands now: the bundle may have been exchanged since this process first looked at it.
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(path);
    const QString program = NSBundle::executablePathNamedBy(info, path);
    if (program.isEmpty())
        return kLSApplicationNotFoundErr;
    return launch(program, startOf(program, info.value(kCFBundleIdentifierKey).toString(), *parameters), process);
}
