// The background agent of Lumaroo.

#include "agent/life/AgentCommands.h"
#include "platform/foundation/crashlogs/CrashLogWriter.h"

#include <QCoreApplication>
#include <cstdio>

namespace {

enum ExitStatus { Done = 0, NotDone = 1, NotUnderstood = 2 };

} // namespace

int main(int argumentCount, char **arguments)
{
    installCrashLogWriter();
    QCoreApplication application(argumentCount, arguments);
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMAROO_VERSION));
    try {
        const AgentRequest request = parseAgentArguments(QCoreApplication::arguments().mid(1));
        if (request.action == AgentRequest::Action::Run)
            return runAgent(request.foreground);
        perform(request);
    } catch (const UsageError &error) {
        std::fprintf(stderr, "LumarooAgent: %s\n%s", error.what(), agentHelp);
        return NotUnderstood;
    } catch (const CommandFailure &failure) {
        std::fprintf(stderr, "LumarooAgent: %s\n", failure.what());
        return NotDone;
    }
    return Done;
}
