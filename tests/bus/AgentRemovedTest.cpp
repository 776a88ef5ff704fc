// What the agent does when what it runs from is taken away.

#include "AgentBundle.h"
#include "AgentSession.h"
#include "Wait.h"
#include "agent/life/BundleWatch.h"

#include <QDir>
#include <QElapsedTimer>

namespace {

class RemovedAgent : public AgentSessionAfterFirstLaunch
{
protected:
    void SetUp() override { ASSERT_TRUE(waitForLaunchOf(agent)); }

    /// Longer than nothing may stand where it was started.
    bool staysRunning()
    {
        QElapsedTimer timer;
        timer.start();
        const qint64 longest = 2 * BundleWatch::patience.count();
        EXPECT_TRUE(waitUntil([&] { return timer.elapsed() > longest || !agent.isRunning(); }));
        return agent.isRunning();
    }
    void expectEnded()
    {
        EXPECT_EQ(agent.exitStatus(), 0);
        EXPECT_EQ(recorder.notifications(), QList({terminating()}));
        EXPECT_TRUE(agent.errors().contains("its bundle has been removed")) << agent.errors().toStdString();
    }
    QString movedAway() const { return bundle.panePath() + QStringLiteral(".away"); }

    const AgentBundle bundle{builtVersion()};
    AgentProgram agent{{QStringLiteral("--foreground")}, bundle.executable()};
};

} // namespace

TEST_F(RemovedAgent, endsWhenItsPaneIsDeleted)
{
    ASSERT_TRUE(QDir(bundle.panePath()).removeRecursively());
    expectEnded();
}

TEST_F(RemovedAgent, endsWhenItsPaneIsMovedAway)
{
    ASSERT_TRUE(QDir().rename(bundle.panePath(), movedAway()));
    expectEnded();
}

TEST_F(RemovedAgent, endsWhenItsOwnBundleIsDeleted)
{
    ASSERT_TRUE(QDir(bundle.path()).removeRecursively());
    expectEnded();
}

TEST_F(RemovedAgent, goesOnWhereAnotherTakesThePlaceAndEndsWithThat)
{
    ASSERT_TRUE(QDir().rename(bundle.panePath(), movedAway()));
    ASSERT_TRUE(QDir().rename(movedAway(), bundle.panePath()));
    EXPECT_TRUE(staysRunning());
    ASSERT_TRUE(QDir(bundle.path()).removeRecursively());
    expectEnded();
}

TEST_F(RemovedAgent, goesOnWhereItsProgramIsReplaced)
{
    bundle.replaceExecutable("another");
    EXPECT_TRUE(staysRunning());
}
