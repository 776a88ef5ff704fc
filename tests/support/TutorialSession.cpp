#include "TutorialSession.h"

#include "KTXConstants.h"
#include "RunningPrograms.h"
#include "Wait.h"

#include <QDir>
#include <csignal>
#include <linux/input-event-codes.h>

namespace {

bool hasTheKeyboard(const QString &title)
{
    return activeWindowTitle() == title && windowWithKeyboard() == activeWindow();
}

} // namespace

TutorialProgram::TutorialProgram(const QMap<QString, QString> &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    process_.setProcessEnvironment(environment);
    process_.start(builtExecutable(), QStringList());
    if (!process_.waitForStarted())
        qFatal("cannot start the tutorial");
}

TutorialProgram::~TutorialProgram()
{
    if (isRunning())
        process_.kill();
    process_.waitForFinished();
}

QString TutorialProgram::builtExecutable()
{
    return QDir::cleanPath(
        AgentProgram::builtBundle() + QStringLiteral("/../LumarooTutorial.app/Contents/Linux/LumarooTutorial"));
}

void TutorialProgram::signal(int number) const
{
    ::kill(pid_t(process_.processId()), number);
}

int TutorialProgram::exitStatus()
{
    const bool hasEnded = waitUntil([this] { return !isRunning(); });
    return hasEnded && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

QString TutorialProgram::errors()
{
    return QString::fromUtf8(process_.readAllStandardError());
}

TutorialSession::TutorialSession()
{
    // Now it is the window manager alone who may hold keys.
    SelectionSession::modifiers();
}

TutorialSession::~TutorialSession()
{
    // What they started themselves.
    for (const QString &program : {TutorialProgram::builtExecutable(), AgentProgram::builtExecutable()})
        killProcessesOf(program);
}

void TutorialSession::startAgent(const QVariantMap &settings)
{
    QVariantMap all = stored();
    all.insert(settings);
    store(all);
    agent = std::make_unique<AgentProgram>();
    ASSERT_TRUE(waitForLaunchOf(*agent));
}

void TutorialSession::startTutorial(const QMap<QString, QString> &variables)
{
    tutorial = std::make_unique<TutorialProgram>(variables);
}

bool TutorialSession::isActive(const QString &title)
{
    return waitUntil([&] { return hasTheKeyboard(title); });
}

bool TutorialSession::isAtPage(const QString &title)
{
    return isActive(title);
}

testing::AssertionResult TutorialSession::skipTo(int step)
{
    static const QStringList windows{"Circle", "Triangle", "Square", "Circle", "Circle", "Star"};
    for (int i = 1; i < step; ++i) {
        if (const auto isThere = isAtStep(QStringLiteral("%1 of 6").arg(i), windows.at(i - 1)); !isThere)
            return isThere;
        pressKey(KEY_PAGEDOWN);
    }
    return isAtStep(QStringLiteral("%1 of 6").arg(step), windows.at(step - 1));
}

testing::AssertionResult TutorialSession::isAtStep(const QString &place, const QString &window)
{
    const auto isThere = [&] {
        const QStringList titles = openWindowTitles();
        return hasTheKeyboard(window) && std::any_of(titles.cbegin(), titles.cend(), [&](const QString &title) {
            return title.startsWith(place + QStringLiteral(" – "));
        });
    };
    if (waitUntil(isThere))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << openWindowTitles().join(u'|').toStdString() << "; active "
                                       << activeWindowTitle().toStdString();
}

bool TutorialSession::isClosedForGood() const
{
    return stored().value(KTXTutorialDone).toBool();
}
