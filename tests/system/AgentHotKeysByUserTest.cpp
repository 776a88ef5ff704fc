// The real settings, the real agent and a user who changes keys and modifiers there: which combinations work
// system-wide then.

#include "AgentProgram.h"
#include "DesktopWindows.h"
#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"
#include "KeyPress.h"
#include "OtherClient.h"
#include "ProductOnHotKeyPage.h"
#include "Wait.h"

#include <QJsonArray>
#include <linux/input-event-codes.h>

namespace {

constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
constexpr int keyCodeOfB = 11, keyCodeOfX = 7, keyCodeOfY = 16;
const QList<int> heldControlAndAlt{KEY_LEFTCTRL, KEY_LEFTALT};
const QList<int> defaultKeys{
    KEY_UP, KEY_RIGHT, KEY_DOWN, KEY_LEFT, KEY_SLASH, KEY_COMMA, KEY_S, KEY_W, KEY_SPACE, KEY_ESC, KEY_ENTER};

class AgentHotKeysByUser : public ProductOnHotKeyPage
{
protected:
    /// The settings beside an agent that the settings have started.
    void start()
    {
        letAgentWrite();
        open();
        ASSERT_EQ(combinations().size(), KTXActionKeyCount);
    }

    void goToModifiersAndKeys()
    {
        turnToKeys();
        remember();
    }

    /// The combinations that the running agent says it has registered.
    static QStringList combinations()
    {
        QStringList registered;
        for (const QJsonValue &key : runningAgent().value("hotKeys").toArray()) {
            if (key.toObject().value("registered").toBool())
                registered.append(key.toObject().value("combination").toString());
        }
        return registered;
    }

    bool isHeld(int evdev, quint16 modifiers = controlAndAlt)
    {
        const bool isFree = other.grabKey(evdev, modifiers);
        if (isFree)
            other.ungrabKey(evdev, modifiers);
        return !isFree;
    }
    QList<int> heldOf(const QList<int> &keys, quint16 modifiers = controlAndAlt)
    {
        QList<int> held;
        std::copy_if(
            keys.begin(), keys.end(), std::back_inserter(held), [&](int key) { return isHeld(key, modifiers); });
        return held;
    }

    QStringList pressedLines() { return linesOfAgent().filter("pressed"); }
    /// Waits until these are all the presses that the agent has received.
    testing::AssertionResult agentReceives(const QStringList &lines)
    {
        if (waitUntil([&] { return pressedLines() == lines; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << linesOfAgent().join(u'\n').toStdString();
    }

    OtherClient other;
};

} // namespace

TEST_F(AgentHotKeysByUser, aNewKeyWorksSystemWideAndTheOldOneIsFree)
{
    start();
    goToModifiersAndKeys();
    goToKeyForUp();
    pressKey(KEY_B);
    expectStored(KTXUpPref, keyCodeOfB);
    EXPECT_TRUE(combinations().contains("⌃⌥B"));
    EXPECT_FALSE(combinations().contains("⌃⌥↑"));
    EXPECT_EQ(heldOf({KEY_UP, KEY_B, KEY_DOWN}), QList({KEY_B, KEY_DOWN}));

    waitForWindowManager();
    other.takeFocus();
    pressKey(KEY_UP, heldControlAndAlt);
    pressKey(KEY_B, heldControlAndAlt);
    EXPECT_TRUE(agentReceives({"pressed moveUpHotKey (⌃⌥B)"}));
    EXPECT_EQ(other.pressedKeys().count(KEY_UP), 1);
    EXPECT_EQ(other.pressedKeys().count(KEY_B), 0);
}

TEST_F(AgentHotKeysByUser, theOldCombinationCanBeTakenByAnotherProgramAtOnce)
{
    start();
    goToModifiersAndKeys();
    goToKeyForUp();
    ASSERT_FALSE(other.grabKey(KEY_UP, controlAndAlt));
    pressKey(KEY_B);
    expectStored(KTXUpPref, keyCodeOfB);
    EXPECT_TRUE(other.grabKey(KEY_UP, controlAndAlt));
    EXPECT_FALSE(other.grabKey(KEY_B, controlAndAlt));
    pressKey(KEY_UP, heldControlAndAlt);
    EXPECT_TRUE(waitUntil([this] { return other.pressedKeys() == QList{KEY_UP}; }));
    EXPECT_EQ(pressedLines(), QStringList());
}

TEST_F(AgentHotKeysByUser, modifiersTickedInTheWindowAreThoseOfAllKeys)
{
    constexpr int all = KTXShiftModifier | KTXControlModifier | KTXOptionModifier;
    constexpr int shiftAndControl = KTXShiftModifier | KTXControlModifier;
    start();
    goToModifiersAndKeys();
    pressTab(1);
    pressKey(KEY_SPACE);
    expectStored(KTXModifierMask, all, all);
    EXPECT_EQ(heldOf(defaultKeys), QList<int>());
    EXPECT_EQ(heldOf(defaultKeys, controlAndAlt | XCB_MOD_MASK_SHIFT), defaultKeys);
    pressTab(2);
    pressKey(KEY_SPACE);
    expectStored(KTXModifierMask, shiftAndControl, shiftAndControl);
    EXPECT_EQ(heldOf(defaultKeys, controlAndAlt | XCB_MOD_MASK_SHIFT), QList<int>());
    EXPECT_EQ(heldOf(defaultKeys, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT), defaultKeys);

    waitForWindowManager();
    other.takeFocus();
    pressKey(KEY_S, heldControlAndAlt);
    pressKey(KEY_S, {KEY_LEFTCTRL, KEY_LEFTSHIFT});
    EXPECT_TRUE(agentReceives({"pressed takeScreenshot (⇧⌃S)"}));
    EXPECT_EQ(other.pressedKeys().count(KEY_S), 1);
}

TEST_F(AgentHotKeysByUser, theSwitchFreesAllKeysAndTakesThemAgain)
{
    start();
    EXPECT_EQ(heldOf(defaultKeys), defaultKeys);
    pressKey(KEY_L, {KEY_LEFTALT});
    ASSERT_TRUE(agentEnds());
    EXPECT_EQ(heldOf(defaultKeys), QList<int>());
    bus.clear();
    pressKey(KEY_L, {KEY_LEFTALT});
    ASSERT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
    EXPECT_EQ(heldOf(defaultKeys), defaultKeys);

    waitForWindowManager();
    other.takeFocus();
    pressKey(KEY_UP, heldControlAndAlt);
    EXPECT_TRUE(agentReceives({"pressed moveUpHotKey (⌃⌥↑)"}));
    EXPECT_EQ(other.pressedKeys().count(KEY_UP), 0);
}

TEST_F(AgentHotKeysByUser, aFieldTakesAKeyWithAnyModifiersThatAreNotInUseForIt)
{
    start();
    goToModifiersAndKeys();
    goToKeyForUp();
    pressKey(KEY_B, heldControlAndAlt);
    expectStored(KTXUpPref, keyCodeOfB);
    pressKey(KEY_X, {KEY_LEFTCTRL, KEY_LEFTALT, KEY_LEFTSHIFT});
    expectStored(KTXUpPref, keyCodeOfX);
    pressKey(KEY_B, {KEY_LEFTCTRL});
    expectStored(KTXUpPref, keyCodeOfB);
    EXPECT_EQ(pressedLines(), QStringList());
}

TEST_F(AgentHotKeysByUser, aCombinationInUseActsAndChangesNoFieldThoughOneHasTheFocus)
{
    start();
    goToModifiersAndKeys();
    goToKeyForUp();
    pressKey(KEY_S, heldControlAndAlt);
    EXPECT_TRUE(agentReceives({"pressed takeScreenshot (⌃⌥S)"}));
    EXPECT_EQ(settings->windows().size(), 1) << "S alone would be refused with a sheet";
    // The field still has the focus, and what is stored first is what it is given now.
    pressKey(KEY_Y);
    expectStored(KTXUpPref, keyCodeOfY);
    EXPECT_EQ(settings->windows().size(), 1);
    pressKey(KEY_S);
    EXPECT_TRUE(settings->waitForWindows(2));
    EXPECT_EQ(pressedLines().size(), 1);
}
