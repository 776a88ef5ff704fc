// What the pane tells of the agent's keys as they really are.

#include "AgentStandIn.h"
#include "KTXModifiers.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "platform/appkit/controls/HeldKeyMarker.h"

#include <QAccessible>
#include <optional>

namespace {

const QString whatToPress = QStringLiteral("Hold ⌃⌥ and press ← → ↑ ↓");
const QString oneIsHeld = QStringLiteral("⌃⌥← is used by another program. Lumaroo cannot take it.");
constexpr int codeOfB = 11;
const QMap<QString, QString> leftIsHeld{{KTXLeftPref, KTXCauseOtherProgram}};

class KeysInPane : public PaneOnHotKeyPage
{
protected:
    KeysInPane() { agent.emplace(); }

    testing::AssertionResult shows(const char *name, const QString &expected)
    {
        if (waitUntil([&] { return text(name) == expected; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << text(name).toStdString();
    }
    bool tellsNothing()
    {
        return waitUntil([this] {
            return (text("pressNowField") + text("keysStateField") + text("heldKeysField")).isEmpty()
                && heldRows().isEmpty() && isHidden(control("freeModifiersButton"));
        });
    }
    QList<int> heldRows()
    {
        QList<int> rows;
        for (const HeldKeyMarker *marker : pane().mainView()->findChildren<HeldKeyMarker *>()) {
            if (!marker->isHidden())
                rows += marker->row();
        }
        return rows;
    }
    QString told(int row) { return QAccessible::queryAccessibleInterface(field(row))->text(QAccessible::Description); }

    std::optional<AgentStandIn> agent;
};

} // namespace

TEST_F(KeysInPane, tellsWhatToPressAndThatAllKeysWork)
{
    showPage();
    EXPECT_TRUE(shows("pressNowField", whatToPress));
    EXPECT_TRUE(shows("keysStateField", "All keys work."));
    EXPECT_EQ(text("heldKeysField"), "");
    EXPECT_EQ(heldRows(), QList<int>());
}

TEST_F(KeysInPane, tellsWhichKeyTheAgentHears)
{
    storeKey(Down, codeOfB);
    showPage();
    EXPECT_TRUE(shows("keysStateField", "All keys work."));
    agent->hearsKeyOf(KTXUpPref);
    EXPECT_TRUE(shows("keyUseField", "You pressed Control Alt ↑: Up."));
    agent->hearsKeyOf("unknown");
    agent->hearsKeyOf(KTXDownPref);
    EXPECT_TRUE(shows("keyUseField", "You pressed Control Alt B: Down."));
}

TEST_F(KeysInPane, tellsNoKeyThatWasPressedWhileAnotherPageWasShown)
{
    showPage();
    EXPECT_TRUE(shows("keysStateField", "All keys work."));
    selectTabViewItemAtIndex(control("tabbedView"), 0);
    agent->hearsKeyOf(KTXUpPref);
    agent->answers(AgentStandIn::answerWith(leftIsHeld)); // which comes after it
    EXPECT_TRUE(shows("heldKeysField", oneIsHeld));
    EXPECT_EQ(text("keyUseField"), "");
}

TEST_F(KeysInPane, namesTheKeyThatAnotherProgramHolds)
{
    agent->answers(AgentStandIn::answerWith(leftIsHeld));
    showPage();
    EXPECT_TRUE(shows("heldKeysField", oneIsHeld));
    EXPECT_EQ(heldRows(), QList<int>{Left});
    EXPECT_EQ(told(Left), "Another program uses this key with the modifier keys. Control Alt ←. Press a key");
    EXPECT_EQ(told(Right), "Control Alt →. Press a key");
    EXPECT_TRUE(text("keysStateField").startsWith("Some keys do not work, since other programs use them."));
    EXPECT_TRUE(isHidden(control("freeModifiersButton"))) << "no modifiers are known that are free";
    agent->answers(AgentStandIn::answerWith({}));
    EXPECT_TRUE(shows("heldKeysField", {}));
    EXPECT_EQ(heldRows(), QList<int>());
    EXPECT_EQ(told(Left), "Control Alt ←. Press a key");
}

TEST_F(KeysInPane, namesAllThatOthersHold)
{
    agent->answers(AgentStandIn::answerWith(
        {{KTXUpPref, KTXCauseOtherProgram}, {KTXScreenshotPref, KTXCauseOtherProgram}, {KTXSnapPref, KTXCauseNoKey}}));
    showPage();
    EXPECT_TRUE(shows("heldKeysField", "⌃⌥↑, ⌃⌥S are used by other programs. Lumaroo cannot take them."));
    EXPECT_EQ(heldRows(), (QList<int>{Up, Screenshot}));
}

TEST_F(KeysInPane, aFieldTellsOfBothItsMarks)
{
    store().set(KTXsuppressHKeysTaken, true);
    storeKey(Right, 123);
    agent->answers(AgentStandIn::answerWith(leftIsHeld));
    showPage();
    ASSERT_TRUE(shows("heldKeysField", oneIsHeld));
    const QString both = told(Left);
    EXPECT_TRUE(both.contains("This key is used more than once.")) << both.toStdString();
    EXPECT_TRUE(both.contains("Another program uses this key"));
    agent.reset();
    ASSERT_TRUE(tellsNothing());
    EXPECT_EQ(told(Left), "This key is used more than once. Control Alt ←. Press a key");
}

TEST_F(KeysInPane, takesFreeModifiersAsIfTheyHadBeenTicked)
{
    agent->answers(AgentStandIn::answerWith(leftIsHeld, 0x1800, {0x1100, 0x100}));
    showPage();
    ASSERT_TRUE(shows("freeModifiersButton", "Use ⌃⌘ instead"));
    EXPECT_TRUE(control("freeModifiersButton")->isVisible());
    bus().clear();
    performClick(control("freeModifiersButton"));
    EXPECT_EQ(store().value(KTXModifierMask), QVariant(0x1100));
    EXPECT_EQ(bus().names(), QStringList(KTXLMPrefsChanged));
    EXPECT_EQ(state(control("commandCheckBox")), NSOnState);
    EXPECT_EQ(state(control("controlCheckBox")), NSOnState);
    EXPECT_EQ(state(control("optionCheckBox")), NSOffState);
    EXPECT_EQ(text("modifiersField"), "⌃⌘");
}

TEST_F(KeysInPane, tellsWhatKeepsAllKeysAway)
{
    const auto allBecauseOf = [](const QString &cause) {
        QMap<QString, QString> causes;
        for (const KTXActionKey &action : KTXActionKeys())
            causes.insert(action.preferenceName, cause);
        return causes;
    };
    showPage();
    agent->answers(AgentStandIn::answerWith(allBecauseOf(KTXCauseDoublePressAlone)));
    EXPECT_TRUE(shows("pressNowField", "Press ⌃⌥ twice, then press ← → ↑ ↓"));
    EXPECT_TRUE(shows("keysStateField", "Lumaroo takes no key from other programs."));
    agent->answers(AgentStandIn::answerWith(allBecauseOf(KTXCauseGivenUp)));
    EXPECT_TRUE(
        shows("keysStateField", "Lumaroo is off for now. The menu of its icon in the panel turns it on again."));
    EXPECT_EQ(text("pressNowField"), "");
    agent->answers(AgentStandIn::answerWith(allBecauseOf(KTXCauseNoHotKeys)));
    EXPECT_TRUE(shows("pressNowField", {}));
    EXPECT_TRUE(shows("keysStateField", "This session has no hot keys for programs. Lumaroo needs an X11 session."));
    agent->answers(AgentStandIn::answerWith({{KTXSnapPref, KTXCauseNoKey}}));
    EXPECT_TRUE(shows("keysStateField", "Some keys do not work. The page “Keys” shows all of them."));
}

TEST_F(KeysInPane, tellsWhatIsWrongWithTheModifiersBesideThem)
{
    showPage();
    const QString usual = "Hold these while you press one of the keys below.";
    ASSERT_TRUE(shows("keysStateField", "All keys work."));
    EXPECT_EQ(text("modifierHint"), usual);
    agent->answers(AgentStandIn::answerWith({{KTXScreenshotPref, KTXCauseTyping}}, 0x200));
    EXPECT_TRUE(shows(
        "modifierHint", "Shift alone would take the capital letters you type. Choose another modifier key with it."));
    EXPECT_EQ(
        text("keysStateField"), "Some keys do not work, since Shift alone would take the capital letters you type.");
    agent->answers(AgentStandIn::answerWith({{KTXLeftPref, KTXCauseNoModifiers}}, 0));
    EXPECT_TRUE(shows("modifierHint", "Choose one at least: without a modifier key, no key works."));
    EXPECT_EQ(text("keysStateField"), "No key works, since no modifier keys are chosen.");
    agent->answers(AgentStandIn::answerWith({}));
    EXPECT_TRUE(shows("modifierHint", usual));
}

TEST_F(KeysInPane, tellsNothingWhereNoAgentRunsAndAgainWhenOneComes)
{
    agent.reset();
    showPage();
    EXPECT_TRUE(tellsNothing());
    agent.emplace();
    EXPECT_TRUE(shows("pressNowField", whatToPress));
    agent.reset();
    EXPECT_TRUE(tellsNothing());
}

TEST_F(KeysInPane, tellsNothingOfASilentAgentAndDoesNotWaitForIt)
{
    agent->answers(AgentStandIn::answerWith(leftIsHeld));
    showPage();
    ASSERT_TRUE(shows("heldKeysField", oneIsHeld));
    agent->isSilent();
    ASSERT_TRUE(waitUntil([this] { return agent->questions() > 1; }));
    EXPECT_TRUE(tellsNothing());
}

TEST_F(KeysInPane, tellsNothingOfAnAgentThatAnswersOtherwise)
{
    showPage();
    ASSERT_TRUE(shows("pressNowField", whatToPress));
    QJsonObject older = AgentStandIn::answerWith(leftIsHeld);
    QJsonArray keys = older.value(KTXAnswerHotKeys).toArray();
    QJsonObject left = keys.at(Left).toObject();
    left.remove(KTXAnswerCause);
    keys.replace(Left, left);
    older.insert(KTXAnswerHotKeys, keys);
    for (const QJsonObject &answer : {older, QJsonObject(), QJsonObject{{KTXAnswerHotKeys, 5}}}) {
        agent->answers(answer);
        EXPECT_TRUE(tellsNothing());
        agent->answers(AgentStandIn::answerWith({}));
        EXPECT_TRUE(shows("pressNowField", whatToPress));
    }
}

TEST_F(KeysInPane, tellsOnWaylandThatTheyDoNothingThereAndWhatToDo)
{
    QMap<QString, QString> all;
    for (const KTXActionKey &action : KTXActionKeys())
        all.insert(action.preferenceName, KTXCauseNoHotKeys);
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    const auto cleanUp = qScopeGuard([] { qunsetenv("WAYLAND_DISPLAY"); });
    const auto tellsOfWayland = [this] {
        return waitUntil([this] { return text("keysStateField").startsWith("This session runs on Wayland."); });
    };
    agent->answers(AgentStandIn::answerWith(all));
    showPage();
    ASSERT_TRUE(waitUntil([this] { return agent->questions() > 0; }));
    EXPECT_TRUE(tellsOfWayland());
    EXPECT_TRUE(text("keysStateField").contains("choose “X11” or “Xorg” on the login screen"));
    EXPECT_EQ(control("pressNowField")->sizeHint().width(), 0) << "there is no key to press";
    agent->answers(AgentStandIn::answerWith({}));
    EXPECT_TRUE(shows("keysStateField", "All keys work.")) << "one that has keys there is believed";
    agent.reset();
    EXPECT_TRUE(tellsOfWayland()) << "whether it runs or not";
}
