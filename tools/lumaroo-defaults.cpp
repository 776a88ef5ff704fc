#include "DefaultsCommands.h"

#include <QCoreApplication>
#include <cstdio>

namespace {

enum ExitStatus { Done = 0, NotDone = 1, NotUnderstood = 2 };

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    try {
        const DefaultsRequest request = parseDefaultsArguments(QCoreApplication::arguments().mid(1));
        if (request.verb == QStringLiteral("help"))
            std::fputs(defaultsHelp().toUtf8().constData(), stdout);
        else
            perform(request);
    } catch (const UsageError &error) {
        std::fprintf(stderr, "lumaroo-defaults: %s\nlumaroo-defaults --help tells more.\n", error.what());
        return NotUnderstood;
    } catch (const CommandFailure &failure) {
        std::fprintf(stderr, "lumaroo-defaults: %s\n", failure.what());
        return NotDone;
    }
    return Done;
}
