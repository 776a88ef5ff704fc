// However a selection ends, the keyboard is free and nothing of it is left on screen.

#include "KTXConstants.h"
#include "LoginManager.h"
#include "OtherClient.h"
#include "ScreenPicture.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <QProcess>
#include <csignal>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>
#include <random>

namespace {

class SelectionEnd : private WithLoginManager, public SelectionSession
{
protected:
    SelectionEnd() : SelectionSession(WithLoginManager::loginManager.variables()) { }

    LoginManager &loginManager() { return WithLoginManager::loginManager; }

    /// Begins one that holds the keyboard.
    void beginPersistent()
    {
        pressModifiersTwice();
        ASSERT_TRUE(says({"began"}));
        ASSERT_TRUE(waitUntil([] { return marksOnScreen() > 0; }));
        ASSERT_TRUE(waitUntil([this] { return !keyboardIsFree(); }));
    }
    bool keyboardIsFree()
    {
        const bool isFree = other.grabKeyboard();
        if (isFree)
            other.ungrabKeyboard();
        return isFree;
    }
    void expectNothingLeft()
    {
        EXPECT_TRUE(waitUntil([this] { return keyboardIsFree(); }));
        EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    }

    OtherClient other;
};

} // namespace

TEST_F(SelectionEnd, comesWithALockedSession)
{
    open();
    beginPersistent();
    loginManager().lock();
    EXPECT_TRUE(says({"began", "cancelled"}));
    expectNothingLeft();
}

TEST_F(SelectionEnd, comesWithALockedSessionAlsoWhileTheModifiersAreHeld)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle"}));
    const auto endsWithALock = [this] {
        loginManager().lock(); // it listens a moment after the mark has come up
        return steps() == QStringList({"began", "moved to middle", "cancelled"});
    };
    EXPECT_TRUE(waitUntil(endsWithALock));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    releaseModifiers();
    expectNothingLeft();
    EXPECT_EQ(activeWindowTitle(), u"left") << "the locked session is left as it is";
}

TEST_F(SelectionEnd, isThatOfAPreviewTooWhereTheSessionIsLocked)
{
    open();
    pressKey(KEY_SPACE, modifiers());
    ASSERT_TRUE(agent.waitForLine(QStringLiteral("preview shown")));
    loginManager().lock();
    EXPECT_TRUE(agent.waitForLine(QStringLiteral("preview ended")));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
}

TEST_F(SelectionEnd, leavesTheKeyboardToALocker)
{
    open();
    beginPersistent();
    loginManager().lock();
    // It gives up where it cannot have the keyboard.
    QProcess locker;
    locker.start(QStringLiteral("i3lock"), {"--nofork", "--color=000000"});
    ASSERT_TRUE(locker.waitForStarted());
    EXPECT_TRUE(says({"began", "cancelled"}));
    EXPECT_TRUE(showsOnScreen([](QPoint) { return qRgb(0, 0, 0); }));
    EXPECT_TRUE(waitUntil([this] { return !keyboardIsFree(); }));
    EXPECT_EQ(locker.state(), QProcess::Running);
    // What is typed now is a password.
    pressKey(KEY_RIGHT, modifiers());
    pressModifiersTwice();
    EXPECT_TRUE(says({"began", "cancelled", "began", "cancelled"}));
    for (const QStringList &command : QList<QStringList>{{"--move", "right"}, {"--preview"}}) {
        const ProgramResult result = runAgent(command);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.errors,
            testing::EndsWith("as one that locks the screen" + std::string(command.size() == 1 ? ".\n" : "\n")));
    }
    EXPECT_EQ(marksOnScreen(), 0);
    locker.kill();
    EXPECT_TRUE(locker.waitForFinished());
    expectNothingLeft();
    pressKey(KEY_RIGHT, modifiers());
    EXPECT_TRUE(isActive("middle")) << "it goes on working";
}

TEST_F(SelectionEnd, comesWithSleep)
{
    open();
    beginPersistent();
    loginManager().prepareForSleep();
    EXPECT_TRUE(says({"began", "cancelled"}));
    expectNothingLeft();
}

TEST_F(SelectionEnd, comesWithTheScreenSaver)
{
    open();
    beginPersistent();
    const XConnection connection = connectToXServer();
    xcb_force_screen_saver(connection.get(), XCB_SCREEN_SAVER_ACTIVE);
    xcb_flush(connection.get());
    EXPECT_TRUE(says({"began", "cancelled"}));
    expectNothingLeft();
}

TEST_F(SelectionEnd, comesWithAClick)
{
    open();
    beginPersistent();
    clickAt({900, 600});
    EXPECT_TRUE(says({"began", "cancelled"}));
    expectNothingLeft();
}

TEST_F(SelectionEnd, comesWithAnyOtherKey)
{
    open();
    beginPersistent();
    pressKey(KEY_Q);
    EXPECT_TRUE(says({"began", "cancelled"}));
    expectNothingLeft();
}

TEST_F(SelectionEnd, comesWithTheAgentsEnd)
{
    open();
    beginPersistent();
    paneAnnounces(KTXLMAgentShouldTerminate);
    EXPECT_EQ(agent.exitStatus(), 0);
    EXPECT_TRUE(says({"began", "cancelled"}));
    expectNothingLeft();
}

TEST_F(SelectionEnd, comesWithAKilledAgent)
{
    open();
    beginPersistent();
    agent.signal(SIGKILL);
    expectNothingLeft();
}

TEST_F(SelectionEnd, comesWithAStoppedAgentThatIsKilled)
{
    open();
    beginPersistent();
    agent.signal(SIGSTOP);
    agent.signal(SIGKILL);
    expectNothingLeft();
}

TEST_F(SelectionEnd, isNoneOfSettingsThatChangeMeanwhile)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle"}));
    QVariantMap settings = stored();
    settings.insert(KTXModifierMask, 0x300);
    store(settings);
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine(QStringLiteral("settings read (2)")));
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right"}));
    releaseModifiers();
    EXPECT_TRUE(isActive("right"));
    EXPECT_TRUE(waitUntil([this] { return other.grabKey(KEY_RIGHT, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1); }));
}

TEST_F(SelectionEnd, leavesNothingHoweverItIsCutOff)
{
    open({{KTXVisualMode, true}});
    std::mt19937 random(1);
    const auto one = [&random](std::initializer_list<int> of) { return of.begin()[random() % of.size()]; };
    for (int gesture = 0; gesture < 150; ++gesture) {
        if (random() % 3 == 0)
            pressModifiersTwice();
        else
            holdModifiers();
        for (unsigned keys = random() % 5; keys > 0; --keys)
            pressKey(one({KEY_LEFT, KEY_RIGHT, KEY_UP, KEY_DOWN, KEY_SLASH, KEY_1, KEY_2, KEY_X, KEY_ESC, KEY_ENTER}));
        releaseModifiers();
        if (random() % 2 == 0)
            pressKey(KEY_ESC);
        if (random() % 5 == 0)
            clickAt({int(random() % 1000), int(random() % 900)});
    }
    pressKey(KEY_X);
    expectNothingLeft();
    EXPECT_TRUE(agent.isRunning());
    turnToWindow(desktopWindows().first().id);
    ASSERT_TRUE(waitUntil([] { return activeWindow() == desktopWindows().first().id; }));
    const qsizetype before = steps().filter("accepted").size();
    pressKey(KEY_RIGHT, modifiers());
    EXPECT_TRUE(waitUntil([&] { return steps().filter("accepted").size() > before; })) << "it goes on working";
}
