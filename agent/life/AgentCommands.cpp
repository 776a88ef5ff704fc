#include "agent/life/AgentCommands.h"

#include "KTXConstants.h"
#include "KTXLoginEntry.h"
#include "agent/life/AgentSettings.h"
#include "agent/life/linux/RunningAgent.h"
#include "agent/windows/WindowSystem.h"
#include "agent/windows/WindowTable.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/SessionBus.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <QCoreApplication>
#include <QHash>
#include <cstdio>

namespace {

void print(const char *text)
{
    if (std::fputs(text, stdout) < 0 || std::fflush(stdout) != 0)
        throw CommandFailure(QStringLiteral("standard output takes no more"));
}

/// What the running agent answers.
QString needRunningAgent(const char *method, const QVariantList &arguments = {}, AnswerTime time = AnswerTime::AtOnce)
{
    const AgentAnswer answer = askRunningAgent(QString::fromLatin1(method), arguments, time);
    if (answer.outcome == AgentAnswer::Outcome::NotRunning)
        throw CommandFailure(QStringLiteral("no agent runs"));
    if (answer.outcome == AgentAnswer::Outcome::Failed)
        throw CommandFailure(answer.text);
    return answer.text;
}

void printSettings(const AgentRequest &)
{
    print(needRunningAgent("Settings").toUtf8().constData());
}

void move(const AgentRequest &request)
{
    needRunningAgent("Move", {request.direction});
}

void accept(const AgentRequest &)
{
    needRunningAgent("Accept");
}

void cancel(const AgentRequest &)
{
    needRunningAgent("Cancel");
}

void takeScreenshot(const AgentRequest &)
{
    const QString path = needRunningAgent("TakeScreenshot", {}, AnswerTime::WhenDone);
    print((path + u'\n').toUtf8().constData());
}

void closeWindow(const AgentRequest &)
{
    needRunningAgent("CloseWindow", {}, AnswerTime::WhenDone);
}

void showPreview(const AgentRequest &)
{
    needRunningAgent("ShowPreview", {}, AnswerTime::WhenDone);
}

void printWindows(const AgentRequest &)
{
    const QVariantMap stored = NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID);
    WindowFailure failure{};
    const auto world = windowSystem()->read(windowChoice(effectiveSettings(stored)), &failure);
    if (!world)
        throw CommandFailure(QStringLiteral("the windows cannot be read: %1").arg(clause(failure)));
    print(windowTable(*world).toUtf8().constData());
}

/// The agent that runs does not listen to what agents announce, so it is told.
void tellRunningAgent()
{
    const AgentAnswer answer = askRunningAgent(QStringLiteral("ReadSettings"));
    if (answer.outcome == AgentAnswer::Outcome::Failed)
        throw CommandFailure(QStringLiteral("the change is stored, but %1").arg(answer.text));
}

void announceChange()
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), KTXLMPrefsChanged, KTXLMAgentID, {}, true);
    if (!waitForSessionBus())
        throw CommandFailure(QStringLiteral("the change is stored, but the session bus does not take announcements"));
}

void setValue(const AgentRequest &request)
{
    CFPreferencesSetAppValue(request.key, request.value, KTXLMAppID);
    if (!CFPreferencesAppSynchronize(KTXLMAppID))
        throw CommandFailure(QStringLiteral("the settings of %1 could not be changed").arg(KTXLMAppID));
    tellRunningAgent();
    announceChange();
}

void startAtLogin(const AgentRequest &request)
{
    const QString error = setStartAtLogin(request.startAtLogin, QCoreApplication::applicationFilePath());
    if (!error.isEmpty())
        throw CommandFailure(error);
}

void quit(const AgentRequest &)
{
    const AgentAnswer answer = quitRunningAgent();
    if (answer.outcome == AgentAnswer::Outcome::Failed)
        throw CommandFailure(answer.text);
    if (answer.outcome == AgentAnswer::Outcome::NotRunning)
        std::fputs("LumarooAgent: no agent runs\n", stderr);
}

void help(const AgentRequest &)
{
    print(agentHelp);
}

void version(const AgentRequest &)
{
    print(qPrintable(QStringLiteral("LumarooAgent %1\n").arg(QCoreApplication::applicationVersion())));
}

} // namespace

void perform(const AgentRequest &request)
{
    using Action = AgentRequest::Action;
    static const QHash<Action, void (*)(const AgentRequest &)> commands{{Action::PrintSettings, printSettings},
        {Action::PrintWindows, printWindows}, {Action::Set, setValue}, {Action::StartAtLogin, startAtLogin},
        {Action::Quit, quit}, {Action::Move, move}, {Action::Accept, accept}, {Action::Cancel, cancel},
        {Action::TakeScreenshot, takeScreenshot}, {Action::CloseWindow, closeWindow},
        {Action::ShowPreview, showPreview}, {Action::Help, help}, {Action::Version, version}};
    commands.value(request.action)(request);
}
