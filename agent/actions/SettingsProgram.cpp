#include "agent/actions/SettingsProgram.h"

#include "agent/actions/ActionTexts.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/processes/LaunchServices.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString folderAbove(const QString &path, int steps)
{
    return QDir::cleanPath(path + QStringLiteral("/..").repeated(steps));
}

/// The agent's lies in Contents/Resources of the pane's.
QString paneBundle()
{
    return folderAbove(NSBundle::mainBundle()->bundlePath(), 3);
}

/// What comes with the pane, beside it or beside the folder of all panes, else what the user would start. Empty where
/// there is none.
QString settingsBundle()
{
    for (const int steps : {1, 2}) {
        const QString beside = folderAbove(paneBundle(), steps) + QStringLiteral("/Settings.app");
        if (QFileInfo(NSBundle::executablePathNamedBy(NSBundle::infoDictionaryOnDisk(beside), beside)).isExecutable())
            return beside;
    }
    const QString command = QStandardPaths::findExecutable(QStringLiteral("lumaroo-settings"));
    return command.isEmpty() ? QString() : folderAbove(QFileInfo(command).canonicalFilePath(), 3);
}

/// What a desktop gives whatever it starts for a key, so that its window may come to the front.
QString activationToken(quint32 time)
{
    return QStringLiteral("lumaroo-agent-%1_TIME%2").arg(QCoreApplication::applicationPid()).arg(time);
}

} // namespace

QString openSettings(quint32 time)
{
    FSRef application;
    if (FSPathMakeRef(settingsBundle(), &application) != noErr)
        return actionText("the command lumaroo-settings is not installed");
    LSApplicationParameters parameters;
    parameters.flags = kLSLaunchDontSwitch | kLSLaunchAsync;
    parameters.application = &application;
    parameters.argv = {QStringLiteral("--"), paneBundle()};
    // The agent's own, from its start, are old.
    parameters.environment = {{QStringLiteral("DESKTOP_STARTUP_ID"), activationToken(time)},
        {QStringLiteral("XDG_ACTIVATION_TOKEN"), QString()}};
    if (LSOpenApplication(&parameters, nullptr) != noErr)
        return actionText("%1 cannot be run").arg(application.path);
    return {};
}
