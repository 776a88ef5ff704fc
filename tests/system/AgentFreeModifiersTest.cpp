// What the real agent shows of modifiers that are free, where another program holds a key of movement.

#include "AgentSession.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"
#include "OtherClient.h"

#include <QJsonArray>
#include <linux/input-event-codes.h>

namespace {

class AgentFreeModifiers : public AgentSessionAfterFirstLaunch
{
public:
    QJsonValue shownByAgent()
    {
        AgentProgram agent(QStringList("--foreground"));
        EXPECT_TRUE(agent.waitForLaunch());
        return runningAgent().value("freeModifiers");
    }

    OtherClient other;
};

} // namespace

TEST_F(AgentFreeModifiers, areNoneWhereAllKeysOfMovementAreItsOwn)
{
    EXPECT_EQ(shownByAgent(), QJsonValue(QJsonArray()));
}

TEST_F(AgentFreeModifiers, areShownBestFirstWhereAnotherProgramHoldsOne)
{
    ASSERT_TRUE(other.grabKey(KEY_UP, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
    ASSERT_TRUE(other.grabKey(KEY_UP, XCB_MOD_MASK_4 | XCB_MOD_MASK_CONTROL));
    EXPECT_EQ(shownByAgent().toArray().first(), qint64(KTXCommandModifier | KTXControlModifier | KTXOptionModifier));
}
