// Alerts as sheets: in front of one window, and answered later.

#include "CapturedLog.h"
#include "DesktopWindows.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "TestBundle.h"
#include "Wait.h"
#include "platform/appkit/Controls.h"
#include "platform/appkit/NSAlert.h"
#include "platform/appkit/NSHelpManager.h"
#include "platform/foundation/NSBundle.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

class AWindow : public QWidget
{
public:
    AWindow() : field(new QLineEdit(this)), box(new QCheckBox("Box", this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(new QLineEdit(this));
        layout->addWidget(field);
        layout->addWidget(box);
        setWindowTitle("Some settings");
        setGeometry(400, 300, 700, 500);
    }

    void showActive()
    {
        show();
        field->setFocus();
        ASSERT_TRUE(waitUntil([this] { return isActiveWindow() && field->hasFocus(); }));
    }
    bool isExposed() const { return windowHandle()->isExposed(); }

    QLineEdit *field;
    QCheckBox *box;
};

class AnAlertSheet : public testing::Test
{
protected:
    struct Answer
    {
        int returnCode;
        QString context;
        int suppression;
        bool operator==(const Answer &) const = default;
    };

    ~AnAlertSheet() override { delete window; }

    static std::unique_ptr<NSAlert> alert(const QString &message)
    {
        auto alert = std::make_unique<NSAlert>();
        alert->setMessageText(message);
        alert->setInformativeText("Please choose another key.");
        alert->setShowsSuppressionButton(true);
        return alert;
    }
    void begin(std::unique_ptr<NSAlert> alert, const QString &context = "context")
    {
        begin(std::move(alert), window, context);
    }
    void begin(std::unique_ptr<NSAlert> alert, QWidget *view, const QString &context = "context")
    {
        const auto didEnd = [this](NSAlert *ended, int returnCode, const QString &contextInfo) {
            answers += Answer{returnCode, contextInfo, ended->suppressionButtonState()};
            atEnd();
        };
        NSAlert::beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(
            std::move(alert), view, delegate.get(), didEnd, context);
    }
    /// A sheet on the shown window, up and with the keyboard.
    void showSheet()
    {
        window->showActive();
        begin(alert("First"));
        ASSERT_TRUE(alertComesUp());
    }
    QString shownMessage() { return textsOfAlert().first(); }

    AWindow *window = new AWindow;
    std::unique_ptr<QObject> delegate = std::make_unique<QObject>();
    QList<Answer> answers;
    std::function<void()> atEnd = [] {};
};

const int pressed = NSAlertFirstButtonReturn;

} // namespace

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
    ASSERT_TRUE(waitUntil([] { return openAlert() && openAlert()->isActiveWindow(); }));
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
    TestBundle bundle("Test.prefPane");
    bundle.writeInfo({{"CFBundleIdentifier", "com.quorvane.Test"}, {"CFBundleHelpBookName", "Test Help"}});
    QStringList requests;
    NSHelpManager::sharedHelpManager()->setRequestObserver(
        [&](const QString &anchor, const QString &book) { requests += anchor + " in " + book; });
    window->showActive();
    auto helpful = alert("First");
    helpful->setShowsHelp(true);
    helpful->setHelpAnchor("conflicts", NSBundle::bundleWithPath(bundle.path()));
    begin(std::move(helpful));
    ASSERT_TRUE(alertComesUp());
    clickOn(partOfAlert("help"));
    EXPECT_TRUE(waitUntil([&] { return requests.size() == 1; }));
    pressKey(KEY_F1);
    EXPECT_TRUE(waitUntil([&] { return requests.size() == 2; }));
    EXPECT_EQ(requests, (QStringList(2, "conflicts in Test Help")));
    EXPECT_TRUE(openAlert());
    EXPECT_TRUE(answers.isEmpty());
    NSHelpManager::sharedHelpManager()->setRequestObserver({});
}

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
    ASSERT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
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
        ASSERT_TRUE(waitUntil([this] { return openAlert()->isActiveWindow() && shownMessage() == "Question"; }));
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
