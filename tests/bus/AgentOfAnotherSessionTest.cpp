// Which agents of this user the process list tells of: those of this session.

#include "AgentSession.h"
#include "KTXConstants.h"
#include "SecondBus.h"

#include "platform/foundation/processes/Processes.h"

namespace {

QList<qint64> agents()
{
    QList<qint64> found;
    ProcessSerialNumber process;
    while (GetNextProcess(&process) == noErr) {
        const QVariantMap information =
            ProcessInformationCopyDictionary(process, kProcessDictionaryIncludeAllInformationMask);
        if (information.value(kCFBundleIdentifierKey) == KTXLMAgentID)
            found += process.lowLongOfPSN;
    }
    return found;
}

QProcessEnvironment withAddress(const QString &address)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", address);
    return environment;
}

} // namespace

TEST_F(AgentSessionAfterFirstLaunch, anAgentOfAnotherSessionIsNotListedAndOneOfThisIs)
{
    const SecondBus bus;
    AgentProgram another({"--foreground"}, AgentProgram::builtExecutable(), bus.environment());
    ASSERT_TRUE(another.waitForLaunch());
    EXPECT_EQ(agents(), QList<qint64>());
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    EXPECT_EQ(agents(), QList<qint64>{agent.processId()});
}

TEST_F(AgentSessionAfterFirstLaunch, theAgentThatOwnsTheNameIsListedHoweverItWasStarted)
{
    // The same bus by a name that nobody would take for the same.
    const QString address = "unix:path=" + qEnvironmentVariable("XDG_RUNTIME_DIR") + "/../run/bus";
    AgentProgram agent({"--foreground"}, AgentProgram::builtExecutable(), withAddress(address));
    ASSERT_TRUE(agent.waitForLaunch());
    EXPECT_EQ(agents(), QList<qint64>{agent.processId()});
    ASSERT_EQ(runAgent({"--quit"}).status, 0);
    EXPECT_EQ(agents(), QList<qint64>());
}
