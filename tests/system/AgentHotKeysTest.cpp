// The real agent's keys: which it holds, what it says of them, and that it obeys its settings.

#include "AgentSession.h"
#include "DesktopWindows.h"
#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"
#include "KeyPress.h"
#include "OtherClient.h"
#include "SecondDisplay.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <csignal>
#include <linux/input-event-codes.h>

namespace {

constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
const QList<int> heldControlAndAlt{KEY_LEFTCTRL, KEY_LEFTALT};
const QString heldElsewhere = QStringLiteral("another program holds it");

std::string shownAsText(const QJsonValue &value)
{
    return QJsonDocument(value.toObject()).toJson().toStdString();
}

QVariantMap key(int code)
{
    return {{KTXKeycode, QString::number(code)}};
}

QList<QList<int>> withoutAlt(QList<QList<int>> modifierKeys)
{
    constexpr int mod1 = 3; // after Shift, Lock and Control
    modifierKeys[mod1].clear();
    return modifierKeys;
}

class AgentHotKeys : public AgentSessionAfterFirstLaunch
{
protected:
    AgentHotKeys()
    {
        // It may be giving the focus of a test before to somebody.
        waitForWindowManager();
        other.takeFocus();
    }

    void start(const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        agent =
            std::make_unique<AgentProgram>(QStringList("--foreground"), AgentProgram::builtExecutable(), environment);
        ASSERT_TRUE(agent->waitForLaunch());
    }
    /// Stores these, as the pane does, and waits until the agent has read them.
    void change(QVariantMap values)
    {
        values.insert(KTXFirstLaunch, true);
        store(values);
        paneAnnounces(KTXLMPrefsChanged);
        ASSERT_TRUE(agent->waitForLine(QString("settings read (%1)").arg(++readings)));
    }
    static QJsonArray shown() { return runningAgent().value("hotKeys").toArray(); }
    static QJsonObject shown(const QString &action)
    {
        for (const QJsonValue &one : shown()) {
            if (one.toObject().value("action") == action)
                return one.toObject();
        }
        return {};
    }
    static QString refusal(const QString &action) { return shown(action).value("refusal").toString(); }
    static bool isRegistered(const QString &action) { return shown(action).value("registered").toBool(); }
    static qsizetype registeredCount()
    {
        const QJsonArray all = shown();
        return std::count_if(
            all.begin(), all.end(), [](const QJsonValue &one) { return one.toObject().value("registered").toBool(); });
    }
    bool isHeld(int evdev, quint16 modifiers = controlAndAlt) { return other.isHeldElsewhere(evdev, modifiers); }
    /// Whether standard error comes to hold exactly this.
    bool says(const QString &errors) const
    {
        return waitUntil([&] { return agent->errors() == errors; });
    }
    QStringList pressedLines() const { return agent->lines().filter("pressed"); }

    OtherClient other;
    std::unique_ptr<AgentProgram> agent;
    int readings = 1;
};

} // namespace

TEST_F(AgentHotKeys, areTheElevenActionsWithTheDefaultModifiers)
{
    start();
    const QStringList combinations{
        "⌃⌥↑", "⌃⌥→", "⌃⌥↓", "⌃⌥←", "⌃⌥/", "⌃⌥,", "⌃⌥S", "⌃⌥W", "⌃⌥Space", "⌃⌥Escape", "⌃⌥Enter"};
    const QJsonArray all = shown();
    ASSERT_EQ(all.size(), KTXActionKeyCount);
    for (int row = 0; row < KTXActionKeyCount; ++row) {
        const KTXActionKey &action = KTXActionKeys().at(row);
        const QJsonObject expected{{"action", action.preferenceName}, {"keyCode", int(action.defaultKeyCode.number())},
            {"combination", combinations.at(row)}, {"registered", true}};
        EXPECT_EQ(all.at(row).toObject(), expected) << row << shownAsText(all.at(row));
    }
    for (const int evdev :
        {KEY_UP, KEY_RIGHT, KEY_DOWN, KEY_LEFT, KEY_SLASH, KEY_COMMA, KEY_S, KEY_W, KEY_SPACE, KEY_ESC, KEY_ENTER})
        EXPECT_TRUE(isHeld(evdev)) << evdev;
    EXPECT_FALSE(isHeld(KEY_UP, XCB_MOD_MASK_CONTROL));
    EXPECT_EQ(agent->errors(), "");
}

TEST_F(AgentHotKeys, pressedWhileAnotherProgramHasTheFocusAreToldEachOnce)
{
    start();
    pressKey(KEY_UP, heldControlAndAlt);
    pressKey(KEY_UP);
    pressKey(KEY_S, heldControlAndAlt);
    EXPECT_TRUE(agent->waitForLine("pressed takeScreenshot (⌃⌥S)"));
    EXPECT_EQ(pressedLines(), QStringList({"pressed moveUpHotKey (⌃⌥↑)", "pressed takeScreenshot (⌃⌥S)"}));
    EXPECT_EQ(other.pressedKeys().count(KEY_UP), 1);
}

TEST_F(AgentHotKeys, obeyAChangedKeyAtOnce)
{
    start();
    change({{KTXUpPref, key(11)}});
    EXPECT_EQ(shown(KTXUpPref).value("combination").toString(), "⌃⌥B");
    EXPECT_FALSE(isHeld(KEY_UP));
    pressKey(KEY_B, heldControlAndAlt);
    EXPECT_TRUE(agent->waitForLine("pressed moveUpHotKey (⌃⌥B)"));
    EXPECT_TRUE(isHeld(KEY_DOWN)) << "the others stay";
}

TEST_F(AgentHotKeys, obeyChangedModifiersAtOnce)
{
    start();
    change({{KTXModifierMask, qlonglong(KTXCommandModifier | KTXShiftModifier)}});
    EXPECT_FALSE(isHeld(KEY_UP));
    EXPECT_EQ(registeredCount(), KTXActionKeyCount);
    pressKey(KEY_UP, {KEY_LEFTMETA, KEY_LEFTSHIFT});
    EXPECT_TRUE(agent->waitForLine("pressed moveUpHotKey (⇧⌘↑)"));
}

TEST_F(AgentHotKeys, ofTwoActionsCanBeExchanged)
{
    start();
    change({{KTXUpPref, key(125)}, {KTXDownPref, key(126)}});
    EXPECT_EQ(registeredCount(), KTXActionKeyCount);
    pressKey(KEY_UP, heldControlAndAlt);
    EXPECT_TRUE(agent->waitForLine("pressed moveDownHotKey (⌃⌥↑)"));
    EXPECT_EQ(agent->errors(), "");
}

TEST_F(AgentHotKeys, heldByAnotherProgramAreRefusedWithTheirNameAndTheOthersWork)
{
    ASSERT_TRUE(other.grabKey(KEY_S, controlAndAlt));
    start();
    EXPECT_EQ(refusal(KTXScreenshotPref), heldElsewhere);
    EXPECT_EQ(registeredCount(), KTXActionKeyCount - 1);
    const QString line = "lumaroo: agent: ⌃⌥S (takeScreenshot) is not registered: another program holds it\n";
    EXPECT_TRUE(says(line)) << agent->errors().toStdString();
    pressKey(KEY_UP, heldControlAndAlt);
    EXPECT_TRUE(agent->waitForLine("pressed moveUpHotKey (⌃⌥↑)"));

    // It is tried again at each reading, and told again only when something is new.
    change({});
    EXPECT_TRUE(says(line)) << agent->errors().toStdString();
    other.ungrabKey(KEY_S, controlAndAlt);
    change({});
    EXPECT_TRUE(isRegistered(KTXScreenshotPref));
    EXPECT_TRUE(says(line)) << agent->errors().toStdString();
}

TEST_F(AgentHotKeys, ofTwoActionsWithOneKeyAreTheFirstOnes)
{
    store({{KTXFirstLaunch, true}, {KTXScreenshotPref, key(126)}});
    start();
    EXPECT_TRUE(isRegistered(KTXUpPref));
    EXPECT_EQ(refusal(KTXScreenshotPref), "another action has the same key");
    // Told once, not at each reading.
    change({{KTXScreenshotPref, key(126)}});
    EXPECT_TRUE(says("lumaroo: agent: ⌃⌥↑ (takeScreenshot) is not registered: another action has the same key\n"));
    change({{KTXScreenshotPref, key(126)}, {KTXUpPref, key(11)}});
    EXPECT_TRUE(isRegistered(KTXScreenshotPref));
    EXPECT_TRUE(isRegistered(KTXUpPref));
    // Also when the later action had it before.
    change({{KTXScreenshotPref, key(126)}});
    EXPECT_EQ(refusal(KTXScreenshotPref), "another action has the same key");
    EXPECT_TRUE(isRegistered(KTXUpPref));
    change({{KTXUpPref, key(76)}, {KTXDownPref, key(52)}});
    EXPECT_EQ(refusal(KTXDownPref), "another action has the same key");
}

TEST_F(AgentHotKeys, withoutModifiersAreNoneAndThatIsSaidOnce)
{
    store({{KTXFirstLaunch, true}, {KTXModifierMask, qlonglong(0)}});
    start();
    EXPECT_EQ(registeredCount(), 0);
    EXPECT_EQ(refusal(KTXUpPref), "no modifiers are chosen");
    EXPECT_FALSE(isHeld(KEY_UP, 0));
    change({{KTXModifierMask, qlonglong(0)}, {KTXUpPref, key(11)}});
    EXPECT_TRUE(says("lumaroo: agent: no modifiers are chosen, so no key is registered\n"))
        << agent->errors().toStdString();
    change({});
    EXPECT_EQ(registeredCount(), KTXActionKeyCount);
    change({{KTXModifierMask, qlonglong(0)}});
    EXPECT_EQ(registeredCount(), 0);
    EXPECT_FALSE(isHeld(KEY_UP));
}

TEST_F(AgentHotKeys, thatNoKeyBearsAreRefused)
{
    store({{KTXFirstLaunch, true}, {KTXUpPref, key(200)}, {KTXDownPref, key(-1)}, {KTXLeftPref, key(65536 + 11)}});
    start();
    for (const QString &action : {KTXUpPref, KTXDownPref})
        EXPECT_EQ(refusal(action), "the keyboard has no such key") << action.toStdString();
    EXPECT_EQ(registeredCount(), KTXActionKeyCount - 2);
    EXPECT_TRUE(isHeld(KEY_B)) << "by its low half, as the window names it";
}

TEST_F(AgentHotKeys, whoseModifierTheKeyboardLosesAreToldAndComeBackWithIt)
{
    start();
    const QList<QList<int>> before = other.modifierKeys();
    other.setModifierKeys(withoutAlt(before));
    EXPECT_TRUE(waitUntil([] { return registeredCount() == 0; }));
    EXPECT_EQ(refusal(KTXUpPref), "the keyboard has no such key");
    EXPECT_TRUE(waitUntil([this] {
        return agent->errors().contains(
            "lumaroo: agent: ⌃⌥S (takeScreenshot) is not registered: the keyboard has no such key\n");
    }));
    change({});
    other.setModifierKeys(before);
    EXPECT_TRUE(waitUntil([] { return registeredCount() == KTXActionKeyCount; }));
}

TEST_F(AgentHotKeys, whoseModifierComesWithTheKeyboardLaterAreRegisteredThen)
{
    const QList<QList<int>> before = other.modifierKeys();
    other.setModifierKeys(withoutAlt(before));
    start();
    EXPECT_EQ(registeredCount(), 0);
    other.setModifierKeys(before);
    EXPECT_TRUE(waitUntil([] { return registeredCount() == KTXActionKeyCount; }));
}

TEST_F(AgentHotKeys, withoutAnEntryTakeTheDefaultKey)
{
    store({{KTXFirstLaunch, true}, {KTXUpPref, "126"}, {KTXDownPref, QVariantMap{{KTXUnichar, "x"}}}});
    start();
    EXPECT_EQ(shown(KTXUpPref).value("combination").toString(), "⌃⌥↑");
    EXPECT_EQ(shown(KTXDownPref).value("combination").toString(), "⌃⌥↓");
}

TEST_F(AgentHotKeys, areFreeOnceTheAgentHasEnded)
{
    start();
    paneAnnounces(KTXLMAgentShouldTerminate);
    ASSERT_TRUE(agent->waitForLine("terminating"));
    EXPECT_EQ(agent->exitStatus(), 0);
    EXPECT_FALSE(isHeld(KEY_UP));
    start();
    agent->signal(SIGKILL);
    EXPECT_EQ(agent->exitStatus(), -1);
    EXPECT_TRUE(waitUntil([this] { return !isHeld(KEY_UP); }));
}

TEST_F(AgentHotKeys, areGivenUpWithTheirXServerWhileTheAgentGoesOn)
{
    SecondDisplay display;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display.name());
    start(environment);
    EXPECT_EQ(registeredCount(), KTXActionKeyCount);
    display.end();
    EXPECT_TRUE(waitUntil([] { return registeredCount() == 0; }));
    EXPECT_EQ(refusal(KTXUpPref), "there are no hot keys in this session");
    const auto hotKeyLines = [this] { return agent->errors().split(u'\n').filter("hot keys"); };
    const QString gone = "lumaroo: hot keys: the X server has gone; no hot key is registered any more";
    EXPECT_TRUE(waitUntil([&] { return hotKeyLines() == QStringList{gone}; })) << agent->errors().toStdString();
    change({});
    const QString none = "lumaroo: hot keys: none can be registered: there is no X server";
    EXPECT_TRUE(waitUntil([&] { return hotKeyLines() == QStringList({gone, none}); })) << agent->errors().toStdString();
    EXPECT_TRUE(agent->isRunning());
}

TEST_F(AgentHotKeys, areRefusedInAWaylandSessionWhereTheAgentRunsAllTheSame)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("WAYLAND_DISPLAY", "wayland-0");
    start(environment);
    EXPECT_EQ(registeredCount(), 0);
    EXPECT_EQ(refusal(KTXUpPref), "there are no hot keys in this session");
    EXPECT_EQ(agent->errors().count('\n'), 1);
    EXPECT_TRUE(agent->errors().contains("Wayland"));
}
