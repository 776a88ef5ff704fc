// The tutorial of Lumaroo.

#include "host/Appearance.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/crashlogs/CrashLogWriter.h"
#include "platform/foundation/system/EndingSignals.h"
#include "tutorial/SingleTutorial.h"
#include "tutorial/TutorialApplication.h"

#include <QApplication>
#include <QCommandLineParser>

namespace {

std::optional<ColorScheme> readScheme()
{
    QCommandLineParser parser;
    const QCommandLineOption theme(
        QStringLiteral("theme"), QStringLiteral("Use this colour scheme: light or dark."), QStringLiteral("scheme"));
    parser.addOption(theme);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(*qApp);
    if (!parser.isSet(theme))
        return {};
    const QString scheme = parser.value(theme);
    if (scheme != QStringLiteral("light") && scheme != QStringLiteral("dark"))
        parser.showHelp(2);
    return scheme == QStringLiteral("dark") ? ColorScheme::Dark : ColorScheme::Light;
}

int run(SingleTutorial &single)
{
    TutorialApplication tutorial;
    const EndingSignals endingSignals;
    QObject::connect(&endingSignals, &EndingSignals::received, &tutorial, &TutorialApplication::leave);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &tutorial, &TutorialApplication::leave);
    QObject::connect(&single, &SingleTutorial::raiseRequested, &tutorial, &TutorialApplication::raise);
    tutorial.start();
    return QCoreApplication::exec();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    installCrashLogWriter();
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationVersion(QStringLiteral(LUMAROO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.quorvane.LumarooSettings"));
    const std::optional<ColorScheme> scheme = readScheme();
    SingleTutorial single;
    if (!single.isFirst())
        return 0;
    trimCrashLogs();
    const Appearance appearance(scheme);
    return run(single);
}
