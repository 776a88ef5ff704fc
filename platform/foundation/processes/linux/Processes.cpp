#include "platform/foundation/processes/Processes.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/processes/ApplicationIdentifier.h"
#include "platform/foundation/processes/linux/ProcessFolders.h"
#include "platform/foundation/processes/linux/ProcessSession.h"
#include "platform/foundation/system/RunningExecutable.h"

#include <QFile>
#include <algorithm>
#include <utility>

namespace {

/// The list that a walk goes through, and how far it has come.
struct ProcessWalk
{
    std::vector<pid_t> processes;
    size_t next = 0;
    QByteArray executable; ///< of the process where it stands, until it has been told

    bool isAt(pid_t process) const { return next > 0 && processes[next - 1] == process; }
    void moveBehind(pid_t process)
    {
        const auto found = std::find(processes.begin(), processes.end(), process);
        next = found == processes.end() ? processes.size() : size_t(found - processes.begin()) + 1;
    }
};

ProcessWalk &walkOfThisThread()
{
    thread_local ProcessWalk walk;
    return walk;
}

/// The .app bundle that a program stands in (<bundle>/Contents/Linux/<program>), or empty.
QByteArray applicationAround(const QByteArray &executable)
{
    static const QByteArray codeFolder("/Contents/Linux");
    const qsizetype nameStart = executable.lastIndexOf('/');
    const QByteArrayView folder = QByteArrayView(executable).first(std::max<qsizetype>(nameStart, 0));
    if (!folder.endsWith(codeFolder))
        return {};
    const QByteArrayView bundle = folder.chopped(codeFolder.size());
    return bundle.endsWith(".app") ? bundle.toByteArray() : QByteArray();
}

QString identifierOf(pid_t process, const QByteArray &executable)
{
    const QByteArray application = applicationAround(executable);
    if (application.isEmpty())
        return {};
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(QFile::decodeName(application));
    const QString identifier = info.value(kCFBundleIdentifierKey).toString();
    return identifier.isEmpty() ? QString::fromUtf8(environmentVariableOf(process, applicationIdentifierVariable))
                                : identifier;
}

bool isOfAnotherSession(pid_t process, const QByteArray &executable)
{
    return !applicationAround(executable).isEmpty() && !wasStartedInThisSession(process)
        && !ownsNameOnSessionBus(process, identifierOf(process, executable));
}

/// False at the end.
bool advance(ProcessWalk &walk)
{
    while (walk.next < walk.processes.size()) {
        const pid_t process = walk.processes[walk.next++];
        walk.executable = executableOf(process);
        if (!isOfAnotherSession(process, walk.executable))
            return true;
    }
    return false;
}

/// Most of what a walk comes to is no application, and is asked for at once: its link is read once.
QByteArray executableToTell(pid_t process)
{
    ProcessWalk &walk = walkOfThisThread();
    const QByteArray seen = walk.isAt(process) ? std::exchange(walk.executable, {}) : QByteArray();
    return seen.isEmpty() || !applicationAround(seen).isEmpty() ? executableOf(process) : seen;
}

} // namespace

OSStatus GetNextProcess(ProcessSerialNumber *process)
{
    if (!process)
        return paramErr;
    ProcessWalk &walk = walkOfThisThread();
    if (*process == kNoProcess)
        walk = {processesOfThisUser(), 0, {}};
    else if (!walk.isAt(pid_t(process->lowLongOfPSN)))
        walk.moveBehind(pid_t(process->lowLongOfPSN));
    const bool isThere = advance(walk);
    *process = isThere ? ProcessSerialNumber{0, quint32(walk.processes[walk.next - 1])} : kNoProcess;
    return isThere ? noErr : procNotFound;
}

QVariantMap ProcessInformationCopyDictionary(const ProcessSerialNumber &process, quint32)
{
    const pid_t id = pid_t(process.lowLongOfPSN);
    const QByteArray executable = executableToTell(id);
    if (executable.isEmpty())
        return {};
    QVariantMap information{{kCFBundleExecutableKey, QFile::decodeName(executable)}};
    const QString identifier = identifierOf(id, executable);
    if (!identifier.isEmpty())
        information.insert(kCFBundleIdentifierKey, identifier);
    return information;
}
