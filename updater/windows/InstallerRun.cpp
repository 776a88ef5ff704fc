#include "updater/windows/InstallerRun.h"

#include "updater/core/Installation.h"
#include "updater/core/UpdateRecord.h"

#include "platform/foundation/preferences/CFPreferences.h"

namespace {

using Kind = UpdateProblem::Kind;

UpdateProblem problemOfStatus(int status)
{
    if (status == 0)
        return {};
    // What the installer has noted, not what this process knows from before.
    CFPreferencesAppSynchronize(updaterDomain);
    const bool isTold = status >= firstInstallationFailure && status <= firstInstallationFailure + int(Kind::Exchange);
    return {isTold ? Kind(status - firstInstallationFailure) : Kind::Exchange, UpdateRecord().installationProblem()};
}

} // namespace

InstallerRun::InstallerRun(const QString &installer, const QString &bundlePath)
{
    process_.setProgram(installer);
    process_.setArguments({bundlePath});
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    connect(&process_, &QProcess::finished, this, &InstallerRun::takeEnd);
    connect(&process_, &QProcess::errorOccurred, this, &InstallerRun::takeError, Qt::QueuedConnection);
}

InstallerRun::~InstallerRun()
{
    process_.disconnect(this);
}

void InstallerRun::start()
{
    process_.start();
}

void InstallerRun::takeEnd()
{
    Q_EMIT finished(process_.exitStatus() == QProcess::NormalExit
            ? problemOfStatus(process_.exitCode())
            : UpdateProblem{Kind::Exchange, QStringLiteral("the installer was ended")});
}

void InstallerRun::takeError(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart)
        Q_EMIT finished({Kind::Exchange, process_.errorString()});
}
