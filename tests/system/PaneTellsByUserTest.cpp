// The real settings and the real agent, beside a program that holds one of its keys: what the window tells in words.

#include "AgentProgram.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "OtherClient.h"
#include "ProductOnHotKeyPage.h"
#include "ScreenReader.h"
#include "Wait.h"

#include <csignal>
#include <linux/input-event-codes.h>

namespace {

constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
constexpr int tabsToTheOffer = 19, newVersion = 200;
const QString whatToPress = QStringLiteral("Hold Control Alt and press ← → ↑ ↓");
const QString leftIsHeld = QStringLiteral("⌃⌥← is used by another program. Lumaroo cannot take it.");

class PaneTellsByUser : public ProductOnHotKeyPage
{
protected:
    testing::AssertionResult tells(const QString &text)
    {
        if (reader.waitForText(settings->processId(), text))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << reader.textsOf(settings->processId()).join(u'\n').toStdString();
    }
    /// The settings that have come back tell it.
    bool isToldAnew(const QString &text)
    {
        return waitUntil([&] { return hosts().size() == 1; }) && reader.waitForText(hosts().first(), text);
    }
    bool tellsNoMore(const QString &text)
    {
        return waitUntil([&] { return !reader.textsOf(settings->processId()).contains(text); });
    }

    ScreenReader reader;
    OtherClient other;
};

} // namespace

TEST_F(PaneTellsByUser, namesAHeldKeyAndTakesTheModifiersThatItOffers)
{
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    open();
    turnToKeys();
    ASSERT_TRUE(tells(leftIsHeld));
    ASSERT_TRUE(tells("Use ⌃⌘ instead"));
    pressTab(tabsToTheOffer);
    pressKey(KEY_SPACE);
    EXPECT_TRUE(waitUntil([] { return domain().value(KTXModifierMask) == QVariant(0x1100); }));
    EXPECT_TRUE(tellsNoMore(leftIsHeld));
    EXPECT_TRUE(tells("Hold Control Super and press ← → ↑ ↓"));
    EXPECT_TRUE(tells("All keys work."));
    quit();
}

TEST_F(PaneTellsByUser, tellsTheCombinationThatIsTried)
{
    open();
    turnToKeys();
    ASSERT_TRUE(tells("All keys work."));
    pressKey(KEY_UP, {KEY_LEFTCTRL, KEY_LEFTALT});
    EXPECT_TRUE(tells("You pressed Control Alt ↑: Up."));
    pressKey(KEY_SLASH, {KEY_LEFTCTRL, KEY_LEFTALT});
    EXPECT_TRUE(tells("You pressed Control Alt /: Under."));
    quit();
}

TEST_F(PaneTellsByUser, tellsWhenAHeldKeyIsFree)
{
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    open();
    ASSERT_TRUE(tells(leftIsHeld));
    other.ungrabKey(KEY_LEFT, controlAndAlt);
    // The agent tries again with each reading, and turning the page announces one.
    turnToKeys();
    EXPECT_TRUE(tellsNoMore(leftIsHeld));
    quit();
}

TEST_F(PaneTellsByUser, tellsNothingOfAnAgentThatWasKilled)
{
    open();
    ASSERT_TRUE(tells(whatToPress));
    for (const pid_t agent : agents())
        ::kill(agent, SIGKILL);
    EXPECT_TRUE(tellsNoMore(whatToPress));
    quit();
}

TEST_F(PaneTellsByUser, tellsNothingWhileTheAgentIsOffAndAgainWhenItIsOn)
{
    open();
    ASSERT_TRUE(tells(whatToPress));
    for (const pid_t agent : agents())
        ::kill(agent, SIGTERM);
    ASSERT_TRUE(agentEnds());
    EXPECT_TRUE(tellsNoMore(whatToPress));
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    AgentProgram agent({"--foreground"}, agentProgram());
    EXPECT_TRUE(tells(leftIsHeld));
    EXPECT_FALSE(reader.textsOf(settings->processId()).contains("All keys work."));
    quit();
}

TEST_F(PaneTellsByUser, tellsOfTheKeysOfANewerAgentThatTookItsPlace)
{
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    open();
    ASSERT_TRUE(tells(leftIsHeld));
    const pid_t older = pid_t(settings->processId());
    other.ungrabKey(KEY_LEFT, controlAndAlt);
    install(newVersion);
    // As a pane shown elsewhere would say: the agent makes way, and the settings come back with the newer code.
    bus.post(KTXLMPrefPaneLaunched, KTXLMAppID);
    ASSERT_TRUE(comesBack(older));
    EXPECT_TRUE(isToldAnew(whatToPress));
    EXPECT_FALSE(reader.textsOf(hosts().first()).contains(leftIsHeld));
    EXPECT_EQ(agents().size(), 1);
}
