// The real agent whose display comes only later, or comes back.

#include "DisplayRoot.h"
#include "KTXConstants.h"
#include "SecondDisplay.h"
#include "SelectionSession.h"

namespace {

/// An agent that is to run on another display than the test.
class AgentWithoutDisplay : public AgentSessionAfterFirstLaunch
{
protected:
    AgentWithoutDisplay() { qputenv("DISPLAY", display.name()); }
    ~AgentWithoutDisplay() override { qputenv("DISPLAY", before_); }

    static std::string refusalOfMove() { return runAgent({"--move", "under"}).errors; }
    /// A window there, and what a manager tells of it.
    static void expectSelectionOn(AgentProgram &agent)
    {
        WindowOfAnotherProgram manager("Manager", {0, 0, 1, 1}), window("Window", {100, 100, 300, 200});
        manager.set("_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager.id()});
        setOnRoot("_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager.id()});
        setOnRoot("_NET_CLIENT_LIST_STACKING", "WINDOW", {window.id()});
        window.map();
        ASSERT_TRUE(waitUntil([] { return refusalOfMove().empty(); })) << refusalOfMove();
        EXPECT_TRUE(agent.waitForLine(QStringLiteral("began")));
        EXPECT_TRUE(waitUntil([] { return SelectionSession::marksOnScreen() > 0; }));
        EXPECT_EQ(runAgent({"--cancel"}).status, 0);
        EXPECT_TRUE(waitUntil([] { return SelectionSession::marksOnScreen() == 0; }));
    }

    SecondDisplay display;

private:
    const QByteArray before_ = qgetenv("DISPLAY");
};

} // namespace

TEST_F(AgentWithoutDisplay, selectsWindowsOnceThereIsOne)
{
    display.end();
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    EXPECT_EQ(refusalOfMove(), "LumarooAgent: there is no X server\n");
    display.begin();
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine(QStringLiteral("settings read (2)")));
    expectSelectionOn(agent);
}

TEST_F(AgentWithoutDisplay, selectsWindowsOnTheNextOne)
{
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    display.end();
    display.begin();
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine(QStringLiteral("settings read (2)")));
    expectSelectionOn(agent);
}
