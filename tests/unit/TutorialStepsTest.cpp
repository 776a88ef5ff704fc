// The tutorial's rules, without a display: which steps there are, when one is done, and what has to be there first.

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXConstants.h"
#include "tutorial/Preparation.h"
#include "tutorial/StageLayout.h"
#include "tutorial/StepRun.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::Not;
using Phase = StepRun::Phase;

namespace {

/// Where all keys work.
AgentReport report()
{
    AgentReport report;
    for (const KTXActionKey &action : KTXActionKeys())
        report.keys += {action.preferenceName, action.defaultKeyCode, {}};
    report.modifiers = 0x1800;
    return report;
}

AgentReport reportWithCause(const QString &action, const QString &cause)
{
    AgentReport one = report();
    for (AgentReport::Key &key : one.keys) {
        if (key.action == action)
            key.cause = cause;
    }
    return one;
}

/// B: begins at the step's first window, m: moves, x: is cancelled, e: Escape outside, w: a window is asked to close;
/// 0 to 3: leads to that window, n: to none of them. At another window: a digit before B.
Phase phaseAfter(Step step, const QByteArray &events)
{
    StepRun run(step);
    Shape at = startOf(step);
    bool isSelecting = false;
    for (const char event : events) {
        const Shape shape = event == 'n' ? Shape::None : Shape(event - '0');
        switch (event) {
        case 'B':
            run.begin(at);
            isSelecting = true;
            break;
        case 'm':
            run.move();
            break;
        case 'x':
            run.cancel();
            break;
        case 'e':
            run.escape();
            break;
        case 'w':
            run.close();
            break;
        default:
            if (isSelecting)
                run.land(shape);
            at = shape;
        }
    }
    return run.phase();
}

struct Course
{
    Step step;
    QByteArray events;
    Phase phase;
};

} // namespace

TEST(TutorialSteps, areDoneByWhatTheyTeachAndByNothingElse)
{
    const QList<Course> courses{
        {Step::Move, "", Phase::Waiting},
        {Step::Move, "B", Phase::Waiting},
        {Step::Move, "Bm", Phase::Selecting},
        {Step::Move, "Bm1", Phase::Done},
        {Step::Move, "Bmm2", Phase::Done},
        {Step::Move, "Bmm0", Phase::Missed},
        {Step::Move, "B0", Phase::Waiting},
        {Step::Move, "Bmx", Phase::Missed},
        {Step::Move, "BmxB", Phase::Missed},
        {Step::Move, "BmxBm", Phase::Selecting},
        {Step::Move, "Bm1BmmmB", Phase::Done},
        {Step::Wrap, "Bm0", Phase::Done},
        {Step::Wrap, "Bm1", Phase::Missed},
        {Step::Wrap, "Bmm0", Phase::Missed}, // back along the row
        {Step::Wrap, "Bmmmm0", Phase::Done},
        {Step::Wrap, "1Bmm0", Phase::Done},
        {Step::Wrap, "1Bm0", Phase::Missed},
        {Step::Wrap, "0Bmmm0", Phase::Done},
        {Step::Wrap, "nBm0", Phase::Missed},
        {Step::Wrap, "Bmn", Phase::Missed},
        {Step::Under, "Bm3", Phase::Done},
        {Step::Under, "Bmm3", Phase::Done},
        {Step::Under, "Bm2", Phase::Missed},
        {Step::Cancel, "Bmx", Phase::Done},
        {Step::Cancel, "Bx", Phase::Waiting},
        {Step::Cancel, "Bm1", Phase::Missed},
        {Step::Cancel, "e", Phase::Missed},
        {Step::Accept, "Bmm2", Phase::Done},
        {Step::Accept, "Bm1", Phase::Missed},
        {Step::Close, "w", Phase::Done},
        {Step::Close, "Bmw", Phase::Done},
        {Step::Close, "Bm1", Phase::Missed},
        {Step::Under, "w", Phase::Missed},
    };
    for (const Course &course : courses)
        EXPECT_EQ(int(phaseAfter(course.step, course.events)), int(course.phase))
            << int(course.step) << ' ' << course.events.constData();
}

TEST(TutorialSteps, takeEscapeForTheirOwnOnceWhereTheyTeachIt)
{
    StepRun cancelling(Step::Cancel);
    EXPECT_TRUE(cancelling.escape());
    EXPECT_FALSE(cancelling.escape()) << "now it is meant for the tutorial";
    EXPECT_FALSE(StepRun(Step::Move).escape());
}

TEST(TutorialSteps, areThoseThatTheSettingsAndKeysAllow)
{
    using enum Step;
    EXPECT_THAT(possibleSteps(report()), ElementsAre(Move, Wrap, Under, Cancel, Accept, Close));
    AgentReport without = report();
    without.wrapsHorizontally = false;
    EXPECT_THAT(possibleSteps(without), ElementsAre(Move, Under, Cancel, Accept, Close));
    EXPECT_THAT(possibleSteps(reportWithCause(KTXUnderPref, "taken")), ElementsAre(Move, Wrap, Cancel, Accept, Close));
    EXPECT_THAT(possibleSteps(reportWithCause(KTXRightPref, "taken")), ElementsAre(Under, Close));
    EXPECT_THAT(possibleSteps(reportWithCause(KTXScreenClosePref, "taken")), Not(testing::Contains(Close)));
    AgentReport byDoublePress = reportWithCause(KTXRightPref, "only pressing the modifiers twice");
    byDoublePress.beginsByDoublePress = true;
    EXPECT_EQ(possibleSteps(byDoublePress).size(), 6) << "the keys work once the modifiers have been pressed twice";
}

TEST(TutorialPreparation, tellsWhatIsInTheWay)
{
    const QString held = KTXCauseOtherProgram;
    EXPECT_EQ(preparationFor(report()), Preparation{});
    AgentReport one = reportWithCause(KTXUpPref, held);
    EXPECT_EQ(preparationFor(one), (Preparation{Obstacle::KeysHeld, {"↑"}, 0x1800, 0}));
    one.freeModifiers = 0x1100;
    EXPECT_EQ(preparationFor(one).offered, 0x1100U);
    EXPECT_EQ(preparationFor(reportWithCause(KTXScreenClosePref, held)), Preparation{}) << "that moves nothing";
    EXPECT_EQ(preparationFor(reportWithCause(KTXUpPref, KTXCauseNoKey)), Preparation{});
    EXPECT_EQ(preparationFor(reportWithCause(KTXUpPref, KTXCauseNoHotKeys)), Preparation{Obstacle::NoHotKeys});
    EXPECT_EQ(preparationFor(reportWithCause(KTXUpPref, KTXCauseGivenUp)), Preparation{Obstacle::OffForNow});
    AgentReport none = report();
    none.modifiers = 0;
    EXPECT_EQ(preparationFor(none), (Preparation{Obstacle::NoModifiers, {}, 0, 0x1800}));
    AgentReport useless = report();
    for (AgentReport::Key &key : useless.keys)
        key.cause = KTXCauseOtherAction;
    EXPECT_EQ(preparationFor(useless), Preparation{Obstacle::KeysUseless});
}

TEST(TutorialReport, isReadFromTheAgentsAnswer)
{
    const auto read = readAgentReport(R"({"version": 100, "readings": 2, "freeModifiers": [4352, 256],
        "settings": {"modifierKeyMask": 6144, "doubleClickToActivate": true, "EnableHorizontalWrap": false,
            "ActionKeyCyclesAscending": true},
        "hotKeys": [{"action": "moveUpHotKey", "keyCode": 126, "combination": "⌃⌥↑", "registered": true},
            {"action": "moveRightHotKey", "keyCode": 124, "combination": "⌃⌥→", "registered": false,
                "refusal": "taken by a window manager", "cause": "otherProgram"}]})");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->modifiers, 0x1800U);
    EXPECT_EQ(read->freeModifiers, 0x1100U);
    EXPECT_TRUE(read->beginsByDoublePress);
    EXPECT_FALSE(read->wrapsHorizontally);
    EXPECT_TRUE(read->cyclesAscending);
    ASSERT_NE(read->key(KTXRightPref), nullptr);
    EXPECT_EQ(read->key(KTXRightPref)->cause, KTXCauseOtherProgram);
    EXPECT_EQ(read->key(KTXUpPref)->keyCode.number(), 126U);
    EXPECT_TRUE(read->key(KTXUpPref)->cause.isEmpty());
}

TEST(TutorialReport, isNoneBeforeTheFirstReadingAndFromAnythingElse)
{
    EXPECT_FALSE(readAgentReport(R"({"readings": 0, "settings": {}})"));
    for (const char *text : {"", "[]", "no JSON", "{}", R"({"readings": "many"})"})
        EXPECT_FALSE(readAgentReport(text)) << text;
    const auto bare = readAgentReport(R"({"readings": 1, "hotKeys": 7, "settings": [], "freeModifiers": {}})");
    ASSERT_TRUE(bare);
    EXPECT_TRUE(bare->keys.isEmpty());
    EXPECT_EQ(preparationFor(*bare).obstacle, Obstacle::NoModifiers);
}

TEST(TutorialStage, hasRoomForAllWindowsBelowTheGuide)
{
    const QSize guide(640, 300);
    for (const QSize size :
        {QSize(1024, 600), QSize(1280, 1024), QSize(853, 683), QSize(1920, 1080), QSize(3840, 2160)}) {
        const QRect screen(QPoint(100, 50), size);
        const StageLayout layout = stageLayout(screen, guide, 1);
        EXPECT_TRUE(screen.contains(QRect(layout.guide, guide)));
        for (int i = 0; i < shapeCount; ++i) {
            EXPECT_TRUE(screen.contains(layout.windows.at(size_t(i)))) << size.width() << ' ' << i;
            EXPECT_FALSE(layout.windows.at(size_t(i)).intersects(QRect(layout.guide, guide)))
                << size.width() << ' ' << i;
        }
        for (int i = 0; i < 2; ++i)
            EXPECT_LT(layout.windows.at(size_t(i)).right(), layout.windows.at(size_t(i) + 1).left());
    }
}

TEST(TutorialStage, letsTooLittleOfTheStarBeSeenToWalkToIt)
{
    constexpr int frame = 40; // of a window manager, in pixels
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const StageLayout layout = stageLayout(QRect(0, 0, 1280, 1024), QSize(640, 300), scale);
        const QRect square = layout.windows.at(size_t(Shape::Square));
        const QRect star = layout.windows.at(size_t(Shape::Star));
        const auto pixels = [scale](int length) { return scale * length; };
        const double beside = pixels(star.x() - square.x()) * (pixels(star.width() + star.height()) + 2 * frame);
        EXPECT_LT(beside, 4096) << scale;
        EXPECT_EQ(star.size(), square.size());
    }
}
