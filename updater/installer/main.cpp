// Installs the update that waits for a bundle, and removes what earlier updates have left beside it:
//   installer BUNDLE
//   installer --after-input BUNDLE
// With the option it first waits for the end of its standard input, a pipe whose other end the settings application
// holds for as long as it lives. Exit status: 0 done or nothing to do, 1 its input cannot be read, 2 the command line
// makes no sense; from 16 on not installed, and why, as a kind of problem (the log tells more).

#include "platform/foundation/system/NSLog.h"
#include "updater/core/Installation.h"
#include "updater/core/UpdateRecord.h"

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

namespace {

enum ExitStatus { Done = 0, NotDone = 1, NotUnderstood = 2 };

/// False where it cannot be read: then nobody knows whether the settings have ended.
bool waitForEndOfInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    char ignored[256];
    qint64 size = 0;
    while ((size = input.read(ignored, sizeof ignored)) > 0) { }
    return size == 0;
}

/// Who opens the settings again at once meets the installer that waited for their end.
Installation installInTurn(const QString &bundle)
{
    const Installation installation = installWaitingUpdate(bundle);
    if (installation.problem.kind != UpdateProblem::Kind::Busy)
        return installation;
    NSLog(QStringLiteral("lumaroo: installer: another process is updating %1; waiting").arg(bundle));
    waitForOtherUpdates(bundle, std::chrono::seconds(30));
    return installWaitingUpdate(bundle);
}

void note(const Installation &installation)
{
    if (installation.problem.isNone())
        UpdateRecord().forgetFailedInstallation();
    else
        UpdateRecord().noteFailedInstallation(
            {installation.update.version, installation.update.displayVersion, installation.problem});
}

int install(const QString &bundle)
{
    const Installation installation = installInTurn(bundle);
    removeWhatIsOver(bundle);
    if (installation.version.isEmpty())
        return Done;
    note(installation);
    if (installation.problem.isNone())
        NSLog(QStringLiteral("lumaroo: installer: version %1 is installed").arg(installation.version));
    else
        NSLog(QStringLiteral("lumaroo: installer: version %1 stays: %2")
                  .arg(installation.version, installation.problem.detail));
    return installation.problem.isNone() ? Done : firstInstallationFailure + int(installation.problem.kind);
}

} // namespace

int main(int argumentCount, char **argumentVector)
{
    const QCoreApplication application(argumentCount, argumentVector);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool waits = arguments.removeOne(QStringLiteral("--after-input"));
    if (arguments.size() != 1 || arguments.first().startsWith(u'-')) {
        std::fputs("usage: installer [--after-input] BUNDLE\n", stderr);
        return NotUnderstood;
    }
    if (waits && !waitForEndOfInput()) {
        NSLog(QStringLiteral("lumaroo: installer: cannot read its input; nothing is installed"));
        return NotDone;
    }
    return install(arguments.first());
}
