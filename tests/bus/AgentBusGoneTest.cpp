#include "AgentSession.h"
#include "Wait.h"

#include <csignal>

TEST_F(AgentSessionAfterFirstLaunch, anAgentQuitsWithItsSession)
{
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    ASSERT_EQ(kill(qEnvironmentVariableIntValue("LUMAROO_BUS_PID"), SIGKILL), 0);
    EXPECT_EQ(agent.exitStatus(), 1);
    EXPECT_TRUE(agent.errors().contains("lumaroo: agent: the session bus has gone; quitting"))
        << agent.errors().toStdString();
}
