// Alerts as sheets: what becomes of them with the view to which they belong.

#include "AlertSheetOnWindow.h"
#include "DesktopWindows.h"
#include "KeyPress.h"

namespace {

/// Two views of the window, as pages of which one is shown at a time, or both.
class ASheetOfAView : public AnAlertSheet
{
protected:
    ASheetOfAView()
    {
        window->layout()->addWidget(first);
        window->layout()->addWidget(second);
    }

    void beginOn(QWidget *view, const QString &message) { begin(alert(message), view, message); }
    /// The sheet that comes up is this one; it is answered.
    void expectSheet(const QString &message)
    {
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(shownMessage(), message);
        const qsizetype before = answers.size();
        pressKey(KEY_ENTER);
        ASSERT_TRUE(waitUntil([&] { return answers.size() == before + 1; }));
        EXPECT_EQ(answers.last().context, message);
    }
    void expectWindowTakesInput()
    {
        ASSERT_TRUE(alertGoesBackTo(window));
        const bool wasChecked = window->box->isChecked();
        window->box->setFocus();
        pressKey(KEY_SPACE);
        EXPECT_TRUE(waitUntil([&] { return window->box->isChecked() != wasChecked; }));
    }

    QWidget *first = new QWidget(window);
    QWidget *second = new QWidget(window);
};

} // namespace

TEST_F(ASheetOfAView, waitsForTheViewAndLeavesTheWindowUsableMeanwhile)
{
    window->showActive();
    first->hide();
    beginOn(first, "Of the first");
    ASSERT_TRUE(noAlertComesUpOn(window));
    expectWindowTakesInput();
    first->show();
    expectSheet("Of the first");
}

TEST_F(ASheetOfAView, hidesWithTheViewAndComesBackAsItWas)
{
    window->showActive();
    beginOn(first, "Of the first");
    ASSERT_TRUE(alertComesUp());
    tickAlert();
    first->hide();
    expectWindowTakesInput();
    EXPECT_TRUE(answers.isEmpty());
    first->show();
    expectSheet("Of the first");
    EXPECT_EQ(answers.last().suppression, NSOnState);
}

TEST_F(ASheetOfAView, isNotInTheWayOfTheSheetOfAViewThatIsShown)
{
    window->showActive();
    first->hide();
    beginOn(first, "Of the first");
    beginOn(second, "Of the second");
    expectSheet("Of the second");
    expectWindowTakesInput();
    first->show();
    expectSheet("Of the first");
}

TEST_F(ASheetOfAView, waitsForTheSheetOfAnotherView)
{
    window->showActive();
    beginOn(first, "Of the first");
    beginOn(second, "Of the second");
    ASSERT_TRUE(alertComesUp());
    runPendingEvents();
    expectSheet("Of the first");
    expectSheet("Of the second");
    expectWindowTakesInput();
}

TEST_F(ASheetOfAView, followsTheSheetOfAnotherViewThatWentUnanswered)
{
    window->showActive();
    beginOn(first, "Of the first");
    ASSERT_TRUE(alertComesUp());
    std::unique_ptr<QObject> gone = std::exchange(delegate, std::make_unique<QObject>());
    beginOn(second, "Of the second");
    gone.reset();
    ASSERT_TRUE(waitUntil([&] { return openAlert() && shownMessage() == "Of the second"; }));
    expectSheet("Of the second");
}

TEST_F(ASheetOfAView, goesUnansweredWithTheViewAndTheWindowTakesInputAgain)
{
    window->showActive();
    beginOn(first, "Of the first");
    ASSERT_TRUE(alertComesUp());
    delete first;
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(window); }));
    expectWindowTakesInput();
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(ASheetOfAView, comesUpOnTheWindowIntoWhichTheViewHasComeMeanwhile)
{
    window->showActive();
    beginOn(first, "Of the first");
    ASSERT_TRUE(alertComesUp());
    first->hide();
    ASSERT_TRUE(alertGoesBackTo(window));
    AWindow other;
    other.showActive();
    other.layout()->addWidget(first);
    first->show();
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(openAlert()->parentWidget(), &other);
    expectSheet("Of the first");
    ASSERT_TRUE(alertGoesBackTo(&other));
    other.layout()->removeWidget(first);
    first->setParent(window);
}

TEST_F(ASheetOfAView, begunBeforeTheViewHasAWindowComesUpInIt)
{
    auto *view = new QWidget;
    beginOn(view, "Of a new view");
    runPendingEvents();
    EXPECT_FALSE(openAlert());
    window->showActive();
    window->layout()->addWidget(view);
    view->show();
    expectSheet("Of a new view");
}

TEST_F(ASheetOfAView, goesOnBlockingTheWindowWhileThatIsMinimised)
{
    window->showActive();
    beginOn(first, "Of the first");
    ASSERT_TRUE(alertComesUp());
    const QPointer<QDialog> sheet = openAlert();
    window->showMinimized();
    ASSERT_TRUE(waitUntil([&] { return !window->isExposed(); }));
    runPendingEvents();
    EXPECT_EQ(openAlert(), sheet.get());
    window->showNormal();
    ASSERT_TRUE(waitUntil([&] { return window->isExposed() && activeWindow() == sheet->winId(); }));
    EXPECT_EQ(openAlert(), sheet.get());
    expectSheet("Of the first");
    expectWindowTakesInput();
}
