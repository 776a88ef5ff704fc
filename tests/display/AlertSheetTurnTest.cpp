// Alerts as sheets: one after another, and what becomes of them with their window and with whoever asked.

#include "AlertSheetOnWindow.h"
#include "CapturedLog.h"
#include "DesktopWindows.h"
#include "KeyPress.h"

#include <QTimer>

TEST_F(AnAlertSheet, waitsForTheOneBeforeIt)
{
    showSheet();
    begin(alert("Second"), "second context");
    runPendingEvents();
    EXPECT_EQ(shownMessage(), "First");
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([&] { return answers.size() == 1; }));
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(shownMessage(), "Second");
    tickAlert();
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers, (QList<Answer>{{pressed, "context", NSOffState}, {pressed, "second context", NSOnState}}));
    EXPECT_TRUE(waitUntil([&] { return window->field->hasFocus(); }));
}

TEST_F(AnAlertSheet, mayLeadToAnother)
{
    atEnd = [this] {
        if (answers.size() == 1)
            begin(alert("Second"), "second context");
    };
    showSheet();
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([&] { return answers.size() == 1; }));
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(shownMessage(), "Second");
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers.last().context, "second context");
}

TEST_F(AnAlertSheet, isNotInTheWayOfASheetOnAnotherWindow)
{
    showSheet();
    AWindow other;
    other.showActive();
    begin(alert("Other"), &other, "other context");
    ASSERT_TRUE(waitUntil([&] { return openAlert() && openAlert()->parentWidget() == &other; }));
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_ENTER);
    EXPECT_TRUE(waitUntil([&] { return answers.size() == 1; }));
    EXPECT_EQ(answers.first().context, "other context");
    EXPECT_EQ(shownMessage(), "First");
}

TEST_F(AnAlertSheet, comesUpWithItsWindow)
{
    begin(alert("First"));
    runPendingEvents();
    EXPECT_FALSE(openAlert());
    window->show();
    ASSERT_TRUE(alertComesUp());
    EXPECT_LE((openAlert()->frameGeometry().center() - window->frameGeometry().center()).manhattanLength(), 3);
}

TEST_F(AnAlertSheet, waitsForAMinimisedWindow)
{
    window->showActive();
    window->showMinimized();
    ASSERT_TRUE(waitUntil([&] { return !window->isExposed(); }));
    begin(alert("First"));
    runPendingEvents();
    EXPECT_FALSE(openAlert());
    window->showNormal();
    EXPECT_TRUE(waitUntil([] { return openAlert() && openAlert()->isVisible(); }));
}

TEST_F(AnAlertSheet, hidesWithItsWindowAndComesBackAsItWas)
{
    showSheet();
    tickAlert();
    window->hide();
    EXPECT_FALSE(openAlert());
    EXPECT_TRUE(waitUntil([] { return desktopWindows().isEmpty(); }));
    EXPECT_TRUE(answers.isEmpty());
    window->show();
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers, (QList<Answer>{{pressed, "context", NSOnState}}));
}

TEST_F(AnAlertSheet, keepsItsWindowFromBeingClosed)
{
    showSheet();
    const quint32 asked = quint32(window->winId());
    askToClose(asked);
    // The requests are taken in turn: once the sheet has gone on its own, the one before it has been heard.
    askToClose(quint32(openAlert()->winId()));
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_TRUE(window->isVisible());
    askToClose(asked);
    EXPECT_TRUE(waitUntil([&] { return !window->isVisible(); }));
}

TEST_F(AnAlertSheet, goesUnansweredWithItsWindow)
{
    showSheet();
    begin(alert("Second"));
    delete std::exchange(window, nullptr);
    runPendingEvents();
    EXPECT_FALSE(openAlert());
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(AnAlertSheet, goesUnansweredWithWhoeverWantedTheAnswer)
{
    showSheet();
    begin(alert("Second"));
    delegate = std::make_unique<QObject>();
    EXPECT_FALSE(openAlert());
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(window); }));
    clickOn(window->box);
    EXPECT_TRUE(waitUntil([&] { return window->box->isChecked(); })) << "the window takes input again";
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(AnAlertSheet, followsOneThatWentUnanswered)
{
    showSheet();
    const std::unique_ptr<QObject> first = std::exchange(delegate, std::make_unique<QObject>());
    begin(alert("Second"), "second context");
    const_cast<std::unique_ptr<QObject> &>(first).reset();
    ASSERT_TRUE(waitUntil([&] { return openAlert() && shownMessage() == "Second"; }));
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers, (QList<Answer>{{pressed, "second context", NSOffState}}));
}

TEST_F(AnAlertSheet, mayEndWithTheEndOfItsWindow)
{
    showSheet();
    begin(alert("Second"));
    atEnd = [this] { delete std::exchange(window, nullptr); };
    pressKey(KEY_ENTER);
    EXPECT_TRUE(waitUntil([&] { return answers.size() == 1; }));
    runPendingEvents();
    EXPECT_FALSE(openAlert());
}

TEST_F(AnAlertSheet, whoseAnswerThrowsIsLoggedAndTheNextFollows)
{
    CapturedLog log;
    atEnd = [] { throw std::runtime_error("no place for it"); };
    showSheet();
    begin(alert("Second"));
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([&] { return answers.size() == 1; }));
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(shownMessage(), "Second");
    EXPECT_EQ(log.linesContaining("no place for it").size(), 1);
    atEnd = [] {};
}

TEST_F(AnAlertSheet, staysUnderAnApplicationModalAlert)
{
    showSheet();
    NSAlert question;
    question.setMessageText("Question");
    QTimer::singleShot(0, window, [this] {
        ASSERT_TRUE(waitUntil([this] { return hasKeyboard(openAlert()) && shownMessage() == "Question"; }));
        pressKey(KEY_ENTER);
    });
    EXPECT_EQ(question.runModal(), NSAlertFirstButtonReturn);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(shownMessage(), "First");
    pressKey(KEY_ENTER);
    EXPECT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers.size(), 1);
}

TEST_F(AnAlertSheet, standsAloneWithoutAWindow)
{
    begin(alert("First"), nullptr);
    ASSERT_TRUE(alertComesUp());
    EXPECT_FALSE(openAlert()->parentWidget());
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([&] { return answers.size() == 1; }));
}
