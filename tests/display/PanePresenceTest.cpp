// What the pane tells of an agent that runs, ends by itself, cannot be started, or is not there.

#include "AgentStandIn.h"
#include "PaneWithAgent.h"
#include "Wait.h"

#include "platform/appkit/controls/KeyCapsLine.h"

#include <QAccessible>
#include <QProcess>
#include <optional>

namespace {

constexpr auto assistiveBusProgram = "/usr/libexec/at-spi-bus-launcher"; // of the package at-spi2-core

/// As soon as there is a bus for assistive tools, the toolkit talks to whichever may be there.
const bool talksToAnyTool = qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");

QStringList alerts;

void hear(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::Alert)
        alerts += event->accessibleInterface()->text(QAccessible::Name);
}

class AgentSeenInPane : public PaneWithAgent
{
protected:
    ~AgentSeenInPane() override
    {
        QAccessible::installUpdateHandler(nullptr);
        assistiveBus_.terminate();
        assistiveBus_.waitForFinished();
    }

    void listenAsAssistiveTool()
    {
        assistiveBus_.start(QString::fromLatin1(assistiveBusProgram), {"--launch-immediately"});
        ASSERT_TRUE(talksToAnyTool && waitUntil([] { return QAccessible::isActive(); }));
        alerts.clear();
        QAccessible::installUpdateHandler(&hear);
    }
    void showWithAgent()
    {
        putAgent();
        agent.emplace();
        controllingPane();
        showPane();
        ASSERT_TRUE(tells("runs in the background"));
        setState(control("toggleStateButton"), NSOnState);
    }
    bool tells(const char *words)
    {
        return waitUntil([&] { return text("stateHint").contains(QString::fromUtf8(words)); });
    }

    std::optional<AgentStandIn> agent;

private:
    QProcess assistiveBus_;
};

} // namespace

TEST_F(AgentSeenInPane, whichIsKilledCountsAsEnded)
{
    showWithAgent();
    agent.reset();
    EXPECT_TRUE(waitUntil([this] { return switchState() == NSOffState; }));
    EXPECT_EQ(text("enabledState"), "Lumaroo Disabled");
    EXPECT_TRUE(tells("has ended by itself"));
}

TEST_F(AgentSeenInPane, isToldToAssistiveToolsWhenItEnds)
{
    showWithAgent();
    listenAsAssistiveTool();
    agent.reset();
    EXPECT_TRUE(waitUntil([] { return alerts.filter("has ended by itself").size() == 1; }));
}

TEST_F(AgentSeenInPane, whichAnnouncesItsEndIsOffAndNoMore)
{
    showWithAgent();
    bus().post(KTXLMAgentIsTerminating, KTXLMAgentID);
    ASSERT_TRUE(waitUntil([this] { return switchState() == NSOffState; }));
    agent.reset();
    EXPECT_TRUE(tells("Turn &Lumaroo on with this switch."));
}

TEST_F(AgentSeenInPane, whichIsThereAgainAtOnceHasNotEnded)
{
    showWithAgent();
    agent.reset();
    agent.emplace();
    ASSERT_TRUE(waitUntil([this] { return agent->questions() > 0; })) << "the pane has seen it";
    EXPECT_EQ(switchState(), NSOnState);
    EXPECT_TRUE(tells("runs in the background"));
}

TEST_F(AgentSeenInPane, whichWasRemovedIsToBeInstalledAgain)
{
    showPane();
    EXPECT_TRUE(tells("was removed from this computer"));
}

TEST_F(AgentSeenInPane, whichCannotBeLaunchedIsSaidNotToStart)
{
    putAgent();
    ASSERT_TRUE(QFile::remove(agentProgram()));
    controllingPane();
    showPane();
    ASSERT_TRUE(tells("Turn &Lumaroo on with this switch."));
    control<QAbstractButton>("toggleStateButton")->click();
    EXPECT_TRUE(tells("could not be started"));
}

TEST_F(AgentSeenInPane, hasItsKeysAsCapsWithNamesThatAreSpoken)
{
    showWithAgent();
    auto *line = control<KeyCapsLine>("pressNowField");
    ASSERT_TRUE(waitUntil([&] { return !line->text().isEmpty(); }));
    EXPECT_EQ(line->accessibleName(), "Hold Control Alt and press ← → ↑ ↓");
    EXPECT_GT(line->heightForWidth(line->minimumSizeHint().width()), 2 * line->sizeHint().height()) << "it wraps";
}
