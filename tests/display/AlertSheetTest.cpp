// Alerts as sheets: how they look in front of their window, and how they are answered.

#include "AlertSheetOnWindow.h"
#include "DesktopWindows.h"
#include "HelpBundle.h"
#include "KeyPress.h"
#include "OpenHelp.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>

TEST_F(AnAlertSheet, comesUpOnItsWindowAfterTheCallHasReturned)
{
    window->showActive();
    begin(alert("First"), window->field);
    EXPECT_TRUE(answers.isEmpty());
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(openAlert()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(openAlert()->parentWidget(), window);
    EXPECT_EQ(openAlert()->windowTitle(), "Some settings");
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(AnAlertSheet, standsInTheMiddleOfItsWindow)
{
    showSheet();
    const QPoint middle = openAlert()->frameGeometry().center();
    EXPECT_LE((middle - window->frameGeometry().center()).manhattanLength(), 3);
}

TEST_F(AnAlertSheet, staysOnTheScreenWhenItsWindowIsAtTheEdge)
{
    window->setGeometry(-500, -300, 600, 400);
    window->show();
    ASSERT_TRUE(waitUntil([&] { return window->isExposed() && window->x() < -100; }));
    begin(alert("First"));
    ASSERT_TRUE(waitUntil([] { return openAlert() && hasKeyboard(openAlert()); }));
    EXPECT_GE(openAlert()->frameGeometry().left(), 0);
    EXPECT_GE(openAlert()->frameGeometry().top(), 0);
}

TEST_F(AnAlertSheet, takesTheInputOfItsWindowButNotOfOthers)
{
    showSheet();
    AWindow other;
    other.setGeometry(10, 30, 200, 150);
    other.show();
    ASSERT_TRUE(waitUntil([&] { return other.isExposed(); }));
    clickOn(window->box);
    clickOn(other.box);
    EXPECT_TRUE(waitUntil([&] { return other.box->isChecked(); }));
    EXPECT_FALSE(window->box->isChecked());
    EXPECT_TRUE(openAlert());
}

TEST_F(AnAlertSheet, keepsTheKeyboardWhenItsWindowIsClicked)
{
    showSheet();
    bool hadFocus = false;
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, window,
        [&](const QWindow *focused) { hadFocus = hadFocus || focused == window->windowHandle(); });
    clickOn(window->box);
    ASSERT_TRUE(waitUntil([&] { return hadFocus; })) << "for a moment";
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_ESC);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers.size(), 1);
    EXPECT_FALSE(window->box->isChecked());
}

TEST_F(AnAlertSheet, showsItsMessageBoldAboveTheInformationAndTheBoxAboveTheButton)
{
    showSheet();
    const auto *message = partOfAlert<QLabel>("message");
    const auto *information = partOfAlert<QLabel>("information");
    const auto *box = partOfAlert<QCheckBox>("suppression");
    const auto buttons = openAlert()->findChildren<QPushButton *>();
    ASSERT_TRUE(message && information && box && buttons.size() == 1);
    EXPECT_TRUE(message->font().bold());
    EXPECT_FALSE(information->font().bold());
    EXPECT_EQ(box->text().remove('&'), "Do not show this message again");
    EXPECT_EQ(buttons.first()->text().remove('&'), "OK");
    EXPECT_LE(message->geometry().bottom(), information->geometry().top());
    EXPECT_LT(information->geometry().bottom(), box->geometry().top());
    EXPECT_LT(box->geometry().bottom(), buttons.first()->geometry().top());
}

TEST_F(AnAlertSheet, withoutASuppressionButtonHasNoBox)
{
    window->showActive();
    auto plain = alert("First");
    plain->setShowsSuppressionButton(false);
    begin(std::move(plain));
    ASSERT_TRUE(alertComesUp());
    EXPECT_FALSE(partOfAlert("suppression"));
    pressKey(KEY_ESC);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers, (QList<Answer>{{pressed, "context", NSOffState}}));
}

TEST_F(AnAlertSheet, isClosedByEscapeReturnEnterAndSpace)
{
    for (const int key : {KEY_ESC, KEY_ENTER, KEY_KPENTER, KEY_SPACE}) {
        answers.clear();
        showSheet();
        pressKey(key);
        EXPECT_TRUE(alertGoesBackTo(window)) << key;
        EXPECT_EQ(answers, (QList<Answer>{{pressed, "context", NSOffState}})) << key;
    }
}

TEST_F(AnAlertSheet, isClosedByAClickAndByItsCloseButton)
{
    showSheet();
    clickOn(openAlert()->findChild<QPushButton *>());
    EXPECT_TRUE(alertGoesBackTo(window));
    showSheet();
    askToClose(quint32(openAlert()->winId()));
    EXPECT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers, (QList<Answer>(2, {pressed, "context", NSOffState})));
}

TEST_F(AnAlertSheet, tellsThatItsBoxWasTicked)
{
    showSheet();
    tickAlert();
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers, (QList<Answer>{{pressed, "context", NSOnState}}));
}

TEST_F(AnAlertSheet, isTickedAndClosedWithTheKeyboardAlone)
{
    showSheet();
    pressKey(KEY_TAB);
    ASSERT_TRUE(waitUntil([] { return partOfAlert("suppression")->hasFocus(); }));
    pressKey(KEY_SPACE);
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_EQ(answers, (QList<Answer>{{pressed, "context", NSOnState}}));
}

TEST_F(AnAlertSheet, startsWithTheBoxAsItWasSet)
{
    window->showActive();
    auto ticked = alert("First");
    ticked->setSuppressionButtonState(NSOnState);
    begin(std::move(ticked));
    ASSERT_TRUE(alertComesUp());
    EXPECT_TRUE(partOfAlert<QCheckBox>("suppression")->isChecked());
}

TEST_F(AnAlertSheet, givesTheFocusBackToWhereItWas)
{
    showSheet();
    EXPECT_FALSE(window->field->hasFocus());
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window));
    EXPECT_TRUE(waitUntil([&] { return window->field->hasFocus(); }));
    pressKey(KEY_A);
    EXPECT_TRUE(waitUntil([&] { return window->field->text() == "a"; }));
}

TEST_F(AnAlertSheet, opensHelpAndStaysOpen)
{
    const HelpBundle bundle;
    ASSERT_EQ(bundle.registerBook(), 0);
    window->showActive();
    auto helpful = alert("First");
    helpful->setShowsHelp(true);
    helpful->setHelpAnchor("landing", NSBundle::bundleWithPath(bundle.path()));
    begin(std::move(helpful));
    ASSERT_TRUE(alertComesUp());
    clickOn(partOfAlert("help"));
    EXPECT_TRUE(helpShows("gliding.html#landing"));
    pressKey(KEY_ESC);
    ASSERT_TRUE(waitUntil([] { return !openHelp(); }));
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_F1);
    EXPECT_TRUE(helpShows("gliding.html#landing"));
    EXPECT_TRUE(openAlert());
    EXPECT_TRUE(answers.isEmpty());
    closeHelp();
}
