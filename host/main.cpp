// The settings application.

#include "host/Appearance.h"
#include "host/HostText.h"
#include "host/SettingsApplication.h"
#include "host/ToolkitTexts.h"
#include "host/linux/SingleInstance.h"
#include "host/linux/WindowActivation.h"
#include "platform/appkit/NSApplication.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/crashlogs/CrashLogWriter.h"
#include "platform/foundation/processes/NSTask.h"
#include "platform/foundation/system/EndingSignals.h"
#include "platform/foundation/system/RunningExecutable.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace {

struct Arguments
{
    QString request;
    std::optional<ColorScheme> scheme;
};

/// A path is made whole here, since the instance that takes the request may run in another folder.
QString wholeRequest(const QString &argument)
{
    const bool isPath = argument.contains(u'/') || QFileInfo(argument).isDir();
    return isPath ? QDir::cleanPath(QDir::current().absoluteFilePath(argument)) : argument;
}

Arguments readArguments()
{
    QCommandLineParser parser;
    const QCommandLineOption theme(
        QStringLiteral("theme"), QStringLiteral("Use this colour scheme: light or dark."), QStringLiteral("scheme"));
    parser.addOption(theme);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("pane"), QStringLiteral("The pane to open, by its path or identifier."),
        QStringLiteral("[pane]"));
    parser.process(*qApp);
    const QString scheme = parser.value(theme);
    if (parser.positionalArguments().size() > 1
        || (parser.isSet(theme) && scheme != QStringLiteral("light") && scheme != QStringLiteral("dark")))
        parser.showHelp(2);
    Arguments arguments;
    if (!parser.positionalArguments().isEmpty())
        arguments.request = wholeRequest(parser.positionalArguments().first());
    if (parser.isSet(theme))
        arguments.scheme = scheme == QStringLiteral("dark") ? ColorScheme::Dark : ColorScheme::Light;
    return arguments;
}

/// They come up once we have gone, as any start does while another one is ending.
void leaveToNewSettings(const QString &request)
{
    NSTask task;
    task.setLaunchPath(runningExecutablePath());
    task.setArguments({QStringLiteral("--"), request});
    task.launch();
}

int run(SettingsApplication &settings, SingleInstance &instance, const QString &request)
{
    EndingSignals endingSignals;
    QObject::connect(&endingSignals, &EndingSignals::received, &settings, &SettingsApplication::terminateAtOnce);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &settings, &SettingsApplication::terminateAtOnce);
    // Queued: whoever asked shall not wait for a pane's question to the user.
    QObject::connect(
        &instance, &SingleInstance::requested, &settings, &SettingsApplication::open, Qt::QueuedConnection);
    QObject::connect(&settings, &SettingsApplication::ending, &instance, &SingleInstance::stopTakingRequests);
    NSApplication::sharedApplication()->setMainWindow(settings.window());
    NSApplication::sharedApplication()->setTerminationHandler([&settings] { settings.terminate(); });
    settings.start(request);
    const int status = QCoreApplication::exec();
    settings.finish();
    NSApplication::sharedApplication()->setTerminationHandler({});
    if (!settings.requestLeft().isEmpty())
        runAtBoundary("start of new settings", [&settings] { leaveToNewSettings(settings.requestLeft()); });
    return status;
}

} // namespace

int main(int argumentCount, char **argumentValues)
{
    installCrashLogWriter();
    const QString activationToken = takeActivationToken();
    QApplication application(argumentCount, argumentValues);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationVersion(QStringLiteral(LUMAROO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.quorvane.LumarooSettings"));
    const Arguments arguments = readArguments();

    SingleInstance instance;
    const SingleInstance::Outcome outcome = instance.start(arguments.request, activationToken);
    if (outcome != SingleInstance::Outcome::First)
        return outcome == SingleInstance::Outcome::HandedOver ? 0 : 1;

    trimCrashLogs();
    translateToolkit(NSBundle::mainBundle()->preferredLocalizations().value(0));
    const Appearance appearance(arguments.scheme);
    SettingsApplication settings(paneFolders());
    return run(settings, instance, arguments.request);
}
