#include "agent/life/Agent.h"
#include "agent/life/AgentCommands.h"
#include "agent/life/AgentTray.h"
#include "agent/life/BundleWatch.h"
#include "agent/life/linux/AgentName.h"
#include "agent/life/linux/AgentObject.h"
#include "agent/life/linux/ProgramReplacement.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/crashlogs/CrashLogWriter.h"
#include "platform/foundation/processes/ApplicationIdentifier.h"
#include "platform/foundation/system/EndingSignals.h"
#include "platform/foundation/system/NSLog.h"

#include <QCoreApplication>
#include <cstdio>

namespace {

void printLine(const char *format, qint64 number = 0)
{
    std::printf(format, qlonglong(number));
    std::fflush(stdout);
}

void printText(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

/// Each step of a gesture.
void printGestures(const Agent &agent)
{
    const Gestures *gestures = &agent.gestures();
    const auto printed = [](const char *format) {
        return [format](const QString &text) { printText(QString::fromLatin1(format).arg(text)); };
    };
    QObject::connect(gestures, &Gestures::began, &agent, [] { printLine("began\n"); });
    QObject::connect(gestures, &Gestures::moved, &agent, printed("moved to %1\n"));
    QObject::connect(gestures, &Gestures::accepted, &agent, printed("accepted %1\n"));
    QObject::connect(gestures, &Gestures::cancelled, &agent, [] { printLine("cancelled\n"); });
    QObject::connect(gestures, &Gestures::refused, &agent,
        [](const GestureRefusal &refusal) { printText(QStringLiteral("refused: %1\n").arg(sentence(refusal))); });
}

void printActions(const Agent &agent)
{
    const Actions *actions = &agent.actions();
    QObject::connect(actions, &Actions::windowClosed, &agent, [] { printLine("window closed\n"); });
    QObject::connect(actions, &Actions::screenshotTaken, &agent,
        [](const QString &path) { printText(QStringLiteral("picture %1\n").arg(path)); });
    QObject::connect(actions, &Actions::previewShown, &agent, [] { printLine("preview shown\n"); });
    QObject::connect(actions, &Actions::previewEnded, &agent, [] { printLine("preview ended\n"); });
    QObject::connect(actions, &Actions::settingsOpened, &agent, [] { printLine("settings opened\n"); });
    QObject::connect(actions, &Actions::refused, &agent,
        [](const QString &sentence) { printText(QStringLiteral("action refused: %1\n").arg(sentence)); });
}

/// Says what happens, for people and tests.
void printEvents(const Agent &agent)
{
    QObject::connect(
        &agent, &Agent::settingsRead, &agent, [&agent] { printLine("settings read (%lld)\n", agent.readings()); });
    QObject::connect(
        &agent, &Agent::launched, &agent, [&agent] { printLine("launched (version %lld)\n", agent.version()); });
    QObject::connect(&agent, &Agent::terminating, &agent, [] { printLine("terminating\n"); });
    QObject::connect(
        &agent.hotKeys(), &AgentHotKeys::pressed, &agent, [](const QString &action, const QString &combination) {
            printText(QStringLiteral("pressed %1 (%2)\n").arg(action, combination));
        });
    printGestures(agent);
    printActions(agent);
    QObject::connect(&agent, &Agent::switched, &agent, [](bool on) { printLine(on ? "on again\n" : "off for now\n"); });
    QObject::connect(&agent, &Agent::tutorialRequested, &agent, [] { printLine("tutorial requested\n"); });
}

/// Once its bundle is gone a process is known by what it was launched with. Who starts this one by hand or at login
/// does not say that, so it starts anew, with that said.
void startAnewWithIdentifier()
{
    const QString identifier = NSBundle::mainBundle()->bundleIdentifier();
    if (identifier.isEmpty() || qEnvironmentVariableIsSet(applicationIdentifierVariable))
        return;
    qputenv(applicationIdentifierVariable, identifier.toUtf8());
    const QString error = replaceProgram(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
    NSLog(QStringLiteral("lumaroo: agent: cannot start anew: %1; going on").arg(error));
}

/// False when another runs already.
bool takeName(AgentName &name)
{
    switch (name.take()) {
    case AgentName::Outcome::Owned:
        break;
    case AgentName::Outcome::RunsAlready:
        std::fputs("LumarooAgent: an agent runs already\n", stderr);
        return false;
    case AgentName::Outcome::NotGivenBack:
        throw CommandFailure(QStringLiteral("the agent that ran has announced its end, but does not end"));
    case AgentName::Outcome::NoAnswer:
        throw CommandFailure(QStringLiteral("an agent runs already, but does not answer"));
    case AgentName::Outcome::NoBus:
        throw CommandFailure(QStringLiteral("there is no session bus to reach the settings window on; not started"));
    }
    return true;
}

void endWithBus()
{
    NSLog(QStringLiteral("lumaroo: agent: the session bus has gone; quitting"));
    QCoreApplication::exit(1);
}

/// Who removes Lumaroo gets the keys back.
void endWithBundle(Agent *agent)
{
    NSLog(QStringLiteral("lumaroo: agent: its bundle has been removed; quitting"));
    agent->terminate();
}

} // namespace

int runAgent(bool foreground)
{
    startAnewWithIdentifier();
    AgentName name;
    Agent agent(name);
    const AgentObject object(agent);
    const AgentTray tray(agent);
    // Whoever sees the name may ask for the end.
    const EndingSignals endingSignals;
    QObject::connect(&endingSignals, &EndingSignals::received, &agent, &Agent::terminate);
    if (!takeName(name))
        return 0;
    trimCrashLogs();
    if (foreground)
        printEvents(agent);
    QObject::connect(&name, &AgentName::busHasGone, qApp, endWithBus);
    const BundleWatch bundle(NSBundle::mainBundle()->bundlePath(), QCoreApplication::applicationFilePath());
    QObject::connect(&bundle, &BundleWatch::removed, &agent, [&agent] { endWithBundle(&agent); });
    // Queued: it may end before the run loop has begun.
    QObject::connect(&agent, &Agent::ended, qApp, &QCoreApplication::exit, Qt::QueuedConnection);
    agent.launch();
    return QCoreApplication::exec();
}
