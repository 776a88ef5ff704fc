// How windows take being closed.

#include "agent/actions/Closing.h"
#include "DisplayRoot.h"
#include "LivingWindow.h"
#include "WindowsOnDesktop.h"
#include "agent/actions/x11/WindowCloser.h"

#include <QElapsedTimer>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Outcome = Closing::Outcome;
const QRect somewhere(120, 90, 300, 200);
// Any number that is no other window's.
constexpr quint32 program = 4711;

class ClosingOnDesktop : public WindowsOnDesktop
{
protected:
    /// Waits for the end.
    void close(const LivingWindow &window, quint32 time = serverTime())
    {
        Closing closing(*system, world({true, {}}), window.id());
        QObject::connect(&closing, &Closing::ended, [this](Outcome outcome, quint32 other) {
            outcomes += outcome;
            dialog = other;
        });
        closing.begin(time);
        EXPECT_THAT(outcomes, IsEmpty());
        EXPECT_TRUE(waitUntil([this] { return !outcomes.isEmpty(); }));
        runPendingEvents();
    }

    QList<Outcome> outcomes;
    quint32 dialog = 0;
};

} // namespace

TEST_F(ClosingOnDesktop, ofAWindowThatClosesIsToldWhenItHasGone)
{
    LivingWindow window("Willing", somewhere);
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::Closed));
    EXPECT_FALSE(listedWindows().contains(window.id()));
}

TEST_F(ClosingOnDesktop, worksWithoutAKeysTime)
{
    LivingWindow window("Willing", somewhere);
    ASSERT_TRUE(window.show());
    close(window, 0);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::Closed));
}

TEST_F(ClosingOnDesktop, ofAWindowThatRefusesIsToldAfterTwoSeconds)
{
    LivingWindow window("Refusing", somewhere);
    bool isAsked = false;
    window.whenAskedToClose([&] { isAsked = true; });
    ASSERT_TRUE(window.show());
    QElapsedTimer timer;
    timer.start();
    close(window);
    EXPECT_TRUE(isAsked);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::StaysOpen));
    EXPECT_GE(timer.elapsed(), 1900);
}

TEST_F(ClosingOnDesktop, isNotKnownWhereNobodyTellsWindowsAnyMore)
{
    constexpr char property[] = "_NET_SUPPORTING_WM_CHECK";
    const QList<quint32> manager = valuesOnRoot(property);
    LivingWindow window("Unseen", somewhere);
    window.whenAskedToClose([&] { removeFromRoot(property); });
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::Unknown));
    setOnRoot(property, "WINDOW", manager);
}

TEST_F(ClosingOnDesktop, ofAWindowThatHangsIsToldAfterTwoSeconds)
{
    LivingWindow window("Hanging", somewhere);
    ASSERT_TRUE(window.show());
    window.hang();
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::StaysOpen));
}

TEST_F(ClosingOnDesktop, ofAWindowThatAsksLeadsToItsDialog)
{
    LivingWindow window("Asking", somewhere), question("Save?", {200, 150, 200, 100}, {.parent = window.id()});
    window.whenAskedToClose([&] { EXPECT_TRUE(question.show()); });
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::Asks));
    EXPECT_EQ(dialog, question.id());
}

TEST_F(ClosingOnDesktop, knowsADialogByItsProcessToo)
{
    LivingWindow window("Asking", somewhere, {.processID = program});
    LivingWindow question("Save?", {200, 150, 200, 100}, {.processID = program});
    window.whenAskedToClose([&] { EXPECT_TRUE(question.show()); });
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::Asks));
    EXPECT_EQ(dialog, question.id());
}

TEST_F(ClosingOnDesktop, knowsADialogOfItsDialogToo)
{
    LivingWindow window("Asking", somewhere), sheet("Options", {200, 150, 200, 100}, {.parent = window.id()});
    LivingWindow question("Save?", {220, 170, 200, 100}, {.parent = sheet.id()});
    window.whenAskedToClose([&] { EXPECT_TRUE(question.show()); });
    ASSERT_TRUE(window.show());
    ASSERT_TRUE(sheet.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::Asks));
    EXPECT_EQ(dialog, question.id());
}

TEST_F(ClosingOnDesktop, takesNoNewWindowForADialogWhereNeitherTellsItsProcess)
{
    LivingWindow window("Refusing", somewhere), other("Other", {500, 400, 200, 100});
    window.whenAskedToClose([&] { EXPECT_TRUE(other.show()); });
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::StaysOpen));
}

TEST_F(ClosingOnDesktop, takesNothingForADialogThatCannotBeSelected)
{
    LivingWindow window("Refusing", somewhere, {.processID = program});
    WindowOfAnotherProgram panel("Panel", {500, 400, 200, 100});
    panel.setType("DOCK").set("_NET_WM_PID", "CARDINAL", {program});
    window.whenAskedToClose([&] { EXPECT_TRUE(panel.show()); });
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::StaysOpen));
}

TEST_F(ClosingOnDesktop, takesNoOtherProgramsNewWindowForADialog)
{
    LivingWindow window("Refusing", somewhere, {.processID = program});
    LivingWindow other("Other", {500, 400, 200, 100}, {.processID = program + 1});
    window.whenAskedToClose([&] { EXPECT_TRUE(other.show()); });
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::StaysOpen));
}

TEST_F(ClosingOnDesktop, takesNoWindowThatWasThereBeforeForADialog)
{
    LivingWindow window("Refusing", somewhere, {.processID = program});
    LivingWindow before("Before", {500, 400, 200, 100}, {.processID = program});
    window.whenAskedToClose([] {});
    ASSERT_TRUE(window.show());
    ASSERT_TRUE(before.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::StaysOpen));
}

TEST_F(ClosingOnDesktop, ofAWindowThatCannotBeAskedIsToldAndNothingElseDone)
{
    LivingWindow window("Unanswering", somewhere, {.canBeAskedToClose = false});
    ASSERT_TRUE(window.show());
    close(window);
    EXPECT_THAT(outcomes, ElementsAre(Outcome::CannotBeAsked));
    EXPECT_TRUE(listedWindows().contains(window.id()));
}

TEST_F(ClosingOnDesktop, byForceEndsTheWindowsProgram)
{
    LivingWindow window("Unanswering", somewhere, {.canBeAskedToClose = false});
    ASSERT_TRUE(window.show());
    WindowCloser::endProgramOf(window.id());
    EXPECT_TRUE(waitUntil([&] { return !listedWindows().contains(window.id()); }));
}
