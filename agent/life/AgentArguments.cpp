#include "agent/life/AgentArguments.h"

#include "agent/gestures/GestureCommands.h"

#include <QHash>

const char *const agentHelp =
    R"(The background agent of Lumaroo. The settings window starts it and ends it.

usage: LumarooAgent [--foreground]
       LumarooAgent --print-settings
       LumarooAgent --print-windows
       LumarooAgent --set KEY [-TYPE] VALUE
       LumarooAgent --start-at-login on|off
       LumarooAgent --quit
       LumarooAgent --move left|right|up|down|under
       LumarooAgent --accept
       LumarooAgent --cancel
       LumarooAgent --screenshot
       LumarooAgent --close
       LumarooAgent --preview

  without an option      runs until it is told to quit; at most one runs in a session
  --foreground           runs, with a line on standard output for each event
  --print-settings       prints what the running agent has read, and which of its keys are registered, as JSON
  --print-windows        prints all windows as they are now, and why some of them cannot be selected; needs no running agent
  --set                  stores a setting, tells the running agent and announces the change
  --start-at-login       whether the desktop starts the agent at login; at first it does not
  --quit                 asks the running agent to quit, and waits until it has
  --move                 has the running agent select the next window there; --accept turns to it, --cancel leaves it
  --screenshot           has the running agent store a picture of the window, and prints the picture's path
  --close                has it close the window; not done where that stays open, or its program asks something first
  --preview              has it show the window enlarged, or end that
  --help, --version      show this; show the version

A selection that --move begins takes no key from other programs. It stays until it is accepted or cancelled, until the
session is locked or sleeps, or until nothing has been done with it for 30 s. The last three are for the selected window,
and where none is selected for the active one.

Values:
  -bool    true or false, yes or no, 1 or 0
  -int     a decimal number of 64 bits
  -float   a number, stored in 32 bits
  -string  any text; this is the type where none is given
  -date    2001-02-03T04:05:06Z, or with another offset from UTC; without any it is UTC
  -data    hexadecimal digits; blanks between them do not count
  -dict    KEY TEXT KEY TEXT ..., or one argument with a dictionary as an XML property list
  -array   TEXT TEXT ...

Exit status: 0 done, or an agent runs already; 1 not done (a line on standard error says why); 2 the command line makes no sense.
)";

namespace {

using Action = AgentRequest::Action;

const QHash<QString, Action> &actions()
{
    static const QHash<QString, Action> all{{QStringLiteral("--foreground"), Action::Run},
        {QStringLiteral("--print-settings"), Action::PrintSettings},
        {QStringLiteral("--print-windows"), Action::PrintWindows}, {QStringLiteral("--set"), Action::Set},
        {QStringLiteral("--start-at-login"), Action::StartAtLogin}, {QStringLiteral("--quit"), Action::Quit},
        {QStringLiteral("--move"), Action::Move}, {QStringLiteral("--accept"), Action::Accept},
        {QStringLiteral("--cancel"), Action::Cancel}, {QStringLiteral("--screenshot"), Action::TakeScreenshot},
        {QStringLiteral("--close"), Action::CloseWindow}, {QStringLiteral("--preview"), Action::ShowPreview},
        {QStringLiteral("--help"), Action::Help}, {QStringLiteral("-h"), Action::Help},
        {QStringLiteral("--version"), Action::Version}};
    return all;
}

bool isAgentOption(const QString &argument)
{
    return actions().contains(argument);
}

bool takeSwitch(QStringList &arguments)
{
    const QString text = arguments.isEmpty() ? QString() : arguments.takeFirst();
    if (text != QStringLiteral("on") && text != QStringLiteral("off"))
        throw UsageError(QStringLiteral("--start-at-login is on or off"));
    return text == QStringLiteral("on");
}

QString takeDirection(QStringList &arguments)
{
    const QString text = arguments.isEmpty() ? QString() : arguments.takeFirst();
    if (!movementNames().contains(text))
        throw UsageError(QStringLiteral("--move goes one of %1").arg(movementNames().join(QStringLiteral(", "))));
    return text;
}

QVariant takeValueToSet(QStringList &arguments)
{
    if (arguments.isEmpty())
        throw UsageError(QStringLiteral("--set needs a value"));
    const QString first = arguments.takeFirst();
    if (isTypeFlag(first))
        return takeValue(first, arguments, isAgentOption);
    if (first.startsWith(u'-'))
        throw UsageError(QStringLiteral("%1 is no type; a text that begins so needs -string before it").arg(first));
    return first;
}

void takeSetting(AgentRequest &request, QStringList &arguments)
{
    if (arguments.isEmpty() || isAgentOption(arguments.first()))
        throw UsageError(QStringLiteral("--set needs a key"));
    request.key = arguments.takeFirst();
    request.value = takeValueToSet(arguments);
}

} // namespace

AgentRequest parseAgentArguments(QStringList arguments)
{
    AgentRequest request;
    if (arguments.isEmpty())
        return request;
    const QString option = arguments.takeFirst();
    if (!isAgentOption(option))
        throw UsageError(QStringLiteral("unknown option %1").arg(option));
    request.action = actions().value(option);
    request.foreground = request.action == Action::Run;
    if (request.action == Action::Set)
        takeSetting(request, arguments);
    else if (request.action == Action::StartAtLogin)
        request.startAtLogin = takeSwitch(arguments);
    else if (request.action == Action::Move)
        request.direction = takeDirection(arguments);
    if (!arguments.isEmpty())
        throw UsageError(QStringLiteral("\"%1\" is too much").arg(arguments.first()));
    return request;
}
