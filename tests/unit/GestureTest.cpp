#include "agent/selection/Gesture.h"

#include <gmock/gmock.h>
#include <random>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using Kind = GestureEvent::Kind;
using State = Gesture::State;
using enum GestureStep;

namespace {

GestureEvent event(Kind kind)
{
    return {.kind = kind};
}

Gesture gestureIn(State state, const GestureRules &rules = {})
{
    Gesture gesture(rules);
    if (state == State::Held)
        gesture.take(event(Kind::Movement));
    if (state == State::Persistent)
        gesture.take(event(rules.persistentByDoublePress ? Kind::ModifiersPressedTwice : Kind::ModifiersPressedOnce));
    EXPECT_EQ(gesture.state(), state);
    return gesture;
}

struct Row
{
    const char *name;
    State before;
    GestureEvent event;
    QList<GestureStep> steps;
    State after;
    GestureRules rules = {};
};

class GestureRows : public testing::TestWithParam<Row>
{
};

const GestureRules once{.persistentByDoublePress = false};
const GestureRules onlyTwice{.onlyByDoublePress = true};
const GestureRules toggling{.toggles = true};

const Row rows[]{
    {"aMovementBegins", State::Idle, event(Kind::Movement), {Begin, Move, WatchModifiers, WatchSession}, State::Held},
    {"noMovementBeginsWhereOnlyADoublePressDoes", State::Idle, event(Kind::Movement), {}, State::Idle, onlyTwice},
    {"aHeldKeyBeginsNothing", State::Idle, event(Kind::Repeat), {}, State::Idle},
    {"cancellingNothingDoesNothing", State::Idle, event(Kind::Cancel), {}, State::Idle},
    {"returnWithoutASelectionGoesBack", State::Idle, event(Kind::Snap), {GoBack}, State::Idle},
    {"aDigitWithoutASelectionIsNothing", State::Idle, event(Kind::Digit), {}, State::Idle},
    {"aReleaseWithoutASelectionIsNothing", State::Idle, event(Kind::ModifiersReleased), {}, State::Idle},
    {"anInterruptionOfNothingIsNothing", State::Idle, event(Kind::Interrupted), {}, State::Idle},
    {"aLateRefusalIsNothing", State::Idle, event(Kind::KeyboardRefused), {}, State::Idle},
    {"aDoublePressBeginsOneThatStays", State::Idle, event(Kind::ModifiersPressedTwice), {Begin, TakeKeyboard, Show},
        State::Persistent},
    {"aSinglePressDoesNot", State::Idle, event(Kind::ModifiersPressedOnce), {}, State::Idle},
    {"aSinglePressDoesWhereItIsChosen", State::Idle, event(Kind::ModifiersPressedOnce), {Begin, TakeKeyboard, Show},
        State::Persistent, once},
    {"aDoublePressDoesNotThen", State::Idle, event(Kind::ModifiersPressedTwice), {}, State::Idle, once},
    {"aDoublePressIsTheOnlyWayWhereItIsTheOnlyOne", State::Idle, event(Kind::ModifiersPressedTwice),
        {Begin, TakeKeyboard, Show}, State::Persistent, onlyTwice},
    {"aCommandBeginsOneThatStaysAndTakesNoKeyboard", State::Idle, event(Kind::Command), {Begin, Move, WatchSession},
        State::Persistent},
    {"aCommandBeginsAlsoWhereOnlyADoublePressDoes", State::Idle, event(Kind::Command), {Begin, Move, WatchSession},
        State::Persistent, onlyTwice},
    {"aCommandMovesOneThatIsHeld", State::Held, event(Kind::Command), {Move}, State::Held},
    {"aCommandMovesOneThatStays", State::Persistent, event(Kind::Command), {Move}, State::Persistent},
    {"aSecondMovementMoves", State::Held, event(Kind::Movement), {Move}, State::Held},
    {"aHeldKeyMoves", State::Held, event(Kind::Repeat), {Move}, State::Held},
    {"lettingGoAccepts", State::Held, event(Kind::ModifiersReleased), {Accept}, State::Idle},
    {"returnAcceptsAtOnce", State::Held, event(Kind::Snap), {Accept}, State::Idle},
    {"escapeDrops", State::Held, event(Kind::Cancel), {Drop}, State::Idle},
    {"anInterruptionDrops", State::Held, event(Kind::Interrupted), {Drop}, State::Idle},
    {"aDigitChoosesAndAccepts", State::Held, event(Kind::Digit), {Choose, Accept}, State::Idle},
    {"aDoublePressWithinChangesNothing", State::Held, event(Kind::ModifiersPressedTwice), {}, State::Held},
    {"oneThatStaysMoves", State::Persistent, event(Kind::Movement), {Move}, State::Persistent},
    {"oneThatStaysRepeats", State::Persistent, event(Kind::Repeat), {Move}, State::Persistent},
    {"oneThatStaysOutlivesTheModifiers", State::Persistent, event(Kind::ModifiersReleased), {}, State::Persistent},
    {"oneThatStaysIsAcceptedByReturn", State::Persistent, event(Kind::Snap), {Accept}, State::Idle},
    {"oneThatStaysIsCancelledByEscape", State::Persistent, event(Kind::Cancel), {Drop}, State::Idle},
    {"oneThatStaysIsCancelledByAnythingElse", State::Persistent, event(Kind::Interrupted), {Drop}, State::Idle},
    {"oneThatStaysTakesADigit", State::Persistent, event(Kind::Digit), {Choose, Accept}, State::Idle},
    {"theWayInIsNotTheWayOut", State::Persistent, event(Kind::ModifiersPressedTwice), {}, State::Persistent},
    {"theWayInIsTheWayOutWhereItToggles", State::Persistent, event(Kind::ModifiersPressedTwice), {Accept}, State::Idle,
        toggling},
    {"aSinglePressIsNoWayOutOfADouble", State::Persistent, event(Kind::ModifiersPressedOnce), {}, State::Persistent,
        toggling},
    {"aSinglePressIsTheWayOutOfASingle", State::Persistent, event(Kind::ModifiersPressedOnce), {Accept}, State::Idle,
        {.persistentByDoublePress = false, .toggles = true}},
    {"withoutTheKeyboardTheCombinationsWork", State::Persistent, event(Kind::KeyboardRefused), {TellOfKeyboard},
        State::Persistent},
    {"withoutKeyboardAndCombinationsItEnds", State::Persistent, event(Kind::KeyboardRefused), {Drop}, State::Idle,
        onlyTwice},
};

} // namespace

TEST_P(GestureRows, holds)
{
    const Row &row = GetParam();
    Gesture gesture = gestureIn(row.before, row.rules);
    EXPECT_THAT(gesture.take(row.event), ElementsAreArray(row.steps));
    EXPECT_EQ(gesture.state(), row.after);
}

INSTANTIATE_TEST_SUITE_P(
    Gesture, GestureRows, testing::ValuesIn(rows), [](const auto &row) { return std::string(row.param.name); });

TEST(Gesture, aRefusedKeyboardIsToldOnce)
{
    Gesture gesture = gestureIn(State::Persistent);
    gesture.take(event(Kind::KeyboardRefused));
    gesture.take(event(Kind::Cancel));
    gesture.take(event(Kind::ModifiersPressedTwice));
    EXPECT_THAT(gesture.take(event(Kind::KeyboardRefused)), IsEmpty());
}

TEST(Gesture, otherRulesHoldFromTheNextOneOn)
{
    Gesture gesture = gestureIn(State::Persistent);
    gesture.setRules(toggling);
    EXPECT_THAT(gesture.take(event(Kind::ModifiersPressedTwice)), IsEmpty());
    gesture.take(event(Kind::Cancel));
    gesture.take(event(Kind::ModifiersPressedTwice));
    EXPECT_THAT(gesture.take(event(Kind::ModifiersPressedTwice)), ElementsAre(Accept));
}

TEST(Gesture, otherRulesHoldAtOnceWhereNoneRuns)
{
    Gesture gesture;
    gesture.setRules(onlyTwice);
    EXPECT_THAT(gesture.take(event(Kind::Movement)), IsEmpty());
}

TEST(Gesture, oneThatFailedIsOver)
{
    Gesture gesture = gestureIn(State::Held);
    gesture.end();
    EXPECT_THAT(gesture.take(event(Kind::ModifiersReleased)), IsEmpty());
    EXPECT_THAT(gesture.take(event(Kind::Movement)), ElementsAre(Begin, Move, WatchModifiers, WatchSession));
}

TEST(Gesture, whateverHappensOneThatHasBegunEndsOnce)
{
    std::mt19937 random(20);
    for (int run = 0; run < 2000; ++run) {
        Gesture gesture({.onlyByDoublePress = random() % 4 == 0,
            .persistentByDoublePress = random() % 2 == 0,
            .toggles = random() % 2 == 0});
        bool isOpen = false;
        for (int i = 0; i < 30; ++i) {
            const auto kind = Kind(random() % (int(Kind::Interrupted) + 1));
            for (GestureStep step : gesture.take(event(kind))) {
                ASSERT_EQ(step == Begin || step == GoBack, !isOpen) << run << ' ' << int(kind);
                isOpen = step == Begin || (isOpen && step != Accept && step != Drop);
            }
            ASSERT_EQ(isOpen, gesture.state() != State::Idle) << run << ' ' << int(kind);
        }
    }
}
