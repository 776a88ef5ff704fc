// Turning to the hot key page with keys in conflict.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "KTXConstants.h"

#include <linux/input-event-codes.h>

namespace {

constexpr int agentPage = 0;
constexpr int hotKeyPage = 1;

const QString message = QStringLiteral("There are conflicts with the marked keys.");
const QString informationAtTurning = QStringLiteral(
    "The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.");
const QString informationAtShowing =
    QStringLiteral("Please change the marked HotKeys in the programs using them before setting them in Lumaroo.");

class HotKeyConflict : public PaneOnHotKeyPage
{
protected:
    HotKeyConflict() { storeKey(Right, 126); }

    /// The agent's page, with the alert of the showing behind us.
    void showAgentPage()
    {
        showPane();
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(textsOfAlert(), (QStringList{message, informationAtShowing}));
        closeAlert();
        ASSERT_EQ(page(), agentPage);
        rememberStore();
    }
    void turnOn() { pressKey(KEY_TAB, {KEY_LEFTCTRL}); }
    void turnBack()
    {
        pressKey(KEY_TAB, {KEY_LEFTCTRL, KEY_LEFTSHIFT});
        ASSERT_TRUE(waitUntil([this] { return page() == agentPage; }));
    }
    void expectAlertOfTurning()
    {
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(page(), hotKeyPage);
        EXPECT_EQ(textsOfAlert(), (QStringList{message, informationAtTurning}));
        EXPECT_NE(partOfAlert("suppression"), nullptr);
        EXPECT_EQ(partOfAlert("help"), nullptr);
        EXPECT_EQ(markedRows(), (QList<int>{Up, Right}));
        EXPECT_EQ(bell.rings(), 0);
    }
    void closeAlert()
    {
        pressKey(KEY_ESC);
        ASSERT_TRUE(alertGoesBackTo(window()));
    }
    int page() { return int(selectedTabIndex(control("tabbedView"))); }
};

} // namespace

TEST_F(HotKeyConflict, eachTurnToThePageTellsOfThemOnce)
{
    showAgentPage();
    const QVariantMap before = store().domain();
    for (int turn = 0; turn < 2; ++turn) {
        turnOn();
        expectAlertOfTurning();
        closeAlert();
        EXPECT_TRUE(noAlertComesUpOn(window())) << "once";
        turnBack();
        EXPECT_TRUE(noAlertComesUpOn(window())) << "other pages ask nothing";
    }
    EXPECT_EQ(store().domain(), before);
}

TEST_F(HotKeyConflict, aTurnByTheProgramTellsOfThemToo)
{
    showAgentPage();
    selectTabViewItemAtIndex(control("tabbedView"), hotKeyPage);
    expectAlertOfTurning();
    closeAlert();
}

TEST_F(HotKeyConflict, theMovementKeysAreShownUnderTheAlertInCapitals)
{
    storeKey(Up, 115);
    storeKey(Right, 115);
    showAgentPage();
    EXPECT_EQ(shown(Up), "Home");
    turnOn();
    expectAlertOfTurning();
    EXPECT_EQ(shown(Up), "HOME");
    EXPECT_EQ(shown(Right), "HOME");
    closeAlert();
}

TEST_F(HotKeyConflict, onceTheBoxIsTickedTheTurnsAreSilent)
{
    showAgentPage();
    turnOn();
    expectAlertOfTurning();
    tickAlert();
    closeAlert();
    EXPECT_EQ(store().value(KTXsuppressHKeysTaken), QVariant(true));
    turnBack();
    turnOn();
    ASSERT_TRUE(waitUntil([this] { return page() == hotKeyPage; }));
    EXPECT_TRUE(noAlertComesUpOn(window()));
    EXPECT_EQ(markedRows(), (QList<int>{Up, Right}));
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(HotKeyConflict, aSuppressionOfTheWrongTypeDoesNotCount)
{
    showAgentPage();
    for (const QVariant &value : {QVariant(1LL), QVariant("true"), QVariant(1.0), QVariant(QVariantList{true}),
             QVariant(QByteArray("1")), QVariant(false)}) {
        store().set(KTXsuppressHKeysTaken, value);
        turnOn();
        expectAlertOfTurning();
        closeAlert();
        EXPECT_EQ(store().value(KTXsuppressHKeysTaken), value) << value.typeName();
        turnBack();
    }
}

TEST_F(HotKeyConflict, aKeyTakenRightAfterTheAlertEndsThem)
{
    showAgentPage();
    turnOn();
    expectAlertOfTurning();
    closeAlert();
    rememberStore();
    pressIn(Right, KEY_R);
    expectTaken(Right, 15, "R");
    EXPECT_TRUE(markedRows().isEmpty());
    turnBack();
    turnOn();
    ASSERT_TRUE(waitUntil([this] { return page() == hotKeyPage; }));
    EXPECT_TRUE(noAlertComesUpOn(window()));
}
