// The real settings and the real agent, beside a program that holds one of its keys: what the window tells in words.

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
constexpr int tabsToTheOffer = 18;
const QString whatToPress = QStringLiteral("Hold ⌃⌥ and press ← → ↑ ↓");
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
    EXPECT_TRUE(tells("Hold ⌃⌘ and press ← → ↑ ↓"));
    EXPECT_TRUE(tells("All keys work."));
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
