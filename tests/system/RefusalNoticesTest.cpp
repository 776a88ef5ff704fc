// What the agent tells as a bubble where nothing comes of a key, to its user at the keyboard.

#include "DisplayRoot.h"
#include "NotificationServer.h"
#include "OtherClient.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

constexpr char managerProperty[] = "_NET_SUPPORTING_WM_CHECK";

class RefusalNotices : public SelectionSession
{
protected:
    explicit RefusalNotices(const QMap<QString, QString> &variables = {}) : SelectionSession(variables) { }
    ~RefusalNotices() override { showManager(); }

    /// As one that does not tell that it runs.
    static void hideManager() { removeFromRoot(managerProperty); }
    void showManager() const { setOnRoot(managerProperty, "WINDOW", manager_); }
    static void tap(int key) { pressKey(key, modifiers()); }
    testing::AssertionResult tells(qsizetype bubbles, const QString &title, const QString &text)
    {
        if (!waitUntil([&] { return server.bubbles().size() >= bubbles; }) || server.bubbles().size() != bubbles)
            return testing::AssertionFailure() << server.bubbles().size() << " bubbles";
        const NotificationServer::Bubble &last = server.bubbles().last();
        if (last.title == title && last.text == text)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << qPrintable(last.title) << ": " << qPrintable(last.text);
    }
    qsizetype refusals() { return steps().filter(QStringLiteral("refused")).size(); }

    NotificationServer server;
    OtherClient other;

private:
    const QList<quint32> manager_ = valuesOnRoot(managerProperty);
};

class RefusalNoticesInGerman : public RefusalNotices
{
protected:
    RefusalNoticesInGerman() : RefusalNotices({{"LANGUAGE", "de"}, {"LC_ALL", "de_DE.UTF-8"}}) { }
};

} // namespace

TEST_F(RefusalNotices, tellWhyThereAreNoWindowsAndAgainOnceThereWere)
{
    open();
    hideManager();
    for (qsizetype press = 1; press <= 2; ++press) {
        tap(KEY_RIGHT);
        ASSERT_TRUE(waitUntil([&] { return refusals() == press; }));
    }
    const QString title = "Windows cannot be selected here";
    EXPECT_TRUE(tells(1, title, "No window manager runs that tells which windows there are."));
    showManager();
    tap(KEY_RIGHT);
    EXPECT_TRUE(isActive("middle"));
    hideManager();
    tap(KEY_RIGHT);
    EXPECT_TRUE(tells(2, title, "No window manager runs that tells which windows there are."));
    EXPECT_EQ(server.bubbles().last().replaced, 1U) << "it takes the first one's place";
}

TEST_F(RefusalNoticesInGerman, areWholeSentences)
{
    open();
    hideManager();
    tap(KEY_RIGHT);
    EXPECT_TRUE(tells(1, "Fenster lassen sich hier nicht auswählen",
        "Es läuft keine Fensterverwaltung, die sagt, welche Fenster es gibt."));
}

TEST_F(RefusalNotices, tellThatTheKeyboardIsKept)
{
    open();
    ASSERT_TRUE(other.grabKeyboard());
    pressModifiersTwice();
    EXPECT_TRUE(tells(
        1, "Another program keeps the keyboard", "Until it lets go, Lumaroo's keys work with the modifier keys held."));
    EXPECT_EQ(runAgent({"--cancel"}).status, 0);
}

TEST_F(RefusalNotices, nameTheWindowThatDidNotComeToTheFront)
{
    open();
    constexpr quint32 inputIsTold = 1;
    WindowOfAnotherProgram unwilling("un\nwilling", {460, 500, 250, 200});
    unwilling.set("WM_HINTS", "WM_HINTS", {inputIsTold, 0, 0, 0, 0, 0, 0, 0, 0});
    ASSERT_TRUE(unwilling.show());
    for (quint32 time = 0; time < 2; ++time) {
        turnToWindow(desktopWindows().first().id);
        ASSERT_TRUE(isActive("left"));
        holdModifiers();
        pressKey(KEY_DOWN);
        pressKey(KEY_RIGHT);
        ASSERT_TRUE(waitUntil(
            [this] { return !steps().isEmpty() && steps().last() == QStringLiteral("moved to un willing"); }));
        releaseModifiers();
        EXPECT_TRUE(
            tells(time + 1, "A window did not come to the front", "The window manager did not turn to “un willing”."));
        EXPECT_EQ(server.bubbles().last().replaced, time) << "a bubble without a button has its place too";
    }
}

TEST_F(RefusalNotices, sayThatTheWindowHasBeenClosed)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle"}));
    window("middle").destroy();
    releaseModifiers();
    EXPECT_TRUE(tells(1, "A window did not come to the front", "“middle” has been closed."));
    EXPECT_TRUE(says({"began", "moved to middle", "accepted middle", "refused: “middle” has been closed meanwhile"}));
}

TEST_F(RefusalNotices, nameTheWindowToGoBackToToo)
{
    open();
    tap(KEY_RIGHT);
    ASSERT_TRUE(isActive("middle"));
    window("left").destroy();
    tap(KEY_ENTER);
    EXPECT_TRUE(tells(1, "A window did not come to the front", "“left” has been closed."));
}
