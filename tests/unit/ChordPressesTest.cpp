// When pressing the activation modifiers by themselves counts, once or twice.

#include "agent/keys/ChordPresses.h"
#include "KTXModifiers.h"

#include <QList>
#include <QStringList>
#include <gtest/gtest.h>
#include <ostream>

namespace {

constexpr quint32 control = KTXControlModifier, option = KTXOptionModifier, shift = KTXShiftModifier;
constexpr quint32 both = control | option;
constexpr quint32 somethingElse = 0xffffffff; // in a step, in place of modifiers

struct Step
{
    quint32 time;
    quint32 held;
};

struct Case
{
    const char *what;
    quint32 modifiers;
    QList<Step> steps;
    QStringList expected; ///< what is told, with its time
};

void PrintTo(const Case &one, std::ostream *stream)
{
    *stream << one.what;
}

QString text(ChordPresses::Outcome outcome, quint32 time)
{
    return QString(outcome == ChordPresses::Outcome::Single ? "single %1" : "double %1").arg(time);
}

const Case cases[]{
    {"two fingers down and up", both, {{100, control}, {110, both}, {200, option}, {205, 0}}, {"single 205"}},
    {"held for longest", both, {{100, both}, {400, 0}}, {"single 400"}},
    {"held too long", both, {{100, both}, {401, 0}}, {}},
    {"one of them stays down", both, {{100, both}, {200, option}}, {}},
    {"and goes up late", both, {{100, both}, {200, option}, {401, 0}}, {}},
    {"twice", both, {{100, both}, {200, 0}, {300, control}, {310, both}}, {"single 200", "double 310"}},
    {"twice at the last moment", both, {{100, both}, {200, 0}, {500, both}}, {"single 200", "double 500"}},
    {"twice too slowly", both, {{100, both}, {200, 0}, {501, both}}, {"single 200"}},
    {"three times are two and one", both, {{100, both}, {150, 0}, {200, both}, {250, 0}, {300, both}, {350, 0}},
        {"single 150", "double 200", "single 350"}},
    {"four times are twice two", both,
        {{100, both}, {150, 0}, {200, both}, {250, 0}, {300, both}, {350, 0}, {400, both}},
        {"single 150", "double 200", "single 350", "double 400"}},
    {"one of them twice, the other held", both, {{100, both}, {150, control}, {200, both}, {250, 0}}, {"single 250"}},
    {"both anew, though never both up", both, {{100, both}, {150, control}, {160, 0}, {170, option}, {200, both}},
        {"single 160", "double 200"}},
    {"another key, told late", both,
        {{100, both}, {120, control}, {130, 0}, {600, both}, {599, somethingElse}, {650, 0}},
        {"single 130", "single 650"}},
    {"with a third modifier first", both, {{90, shift}, {100, both | shift}, {150, 0}}, {}},
    {"with a third one last", both, {{100, both}, {120, both | shift}, {150, both}, {160, 0}}, {}},
    {"with a third one in between", both, {{100, both}, {150, 0}, {170, shift}, {180, 0}, {200, both}}, {"single 150"}},
    {"another key while they are down", both, {{100, both}, {120, somethingElse}, {150, 0}, {200, both}, {210, 0}},
        {"single 210"}},
    {"another key in between", both, {{100, both}, {150, 0}, {170, somethingElse}, {200, both}}, {"single 150"}},
    {"another key at the second time", both, {{100, both}, {150, 0}, {200, control}, {205, somethingElse}, {210, both}},
        {"single 150"}},
    {"after another key they are to go up first", both,
        {{100, both}, {120, somethingElse}, {130, control}, {140, both}, {150, 0}}, {}},
    {"typed by a program", both, {{100, both}, {109, 0}, {200, both}, {300, 0}}, {"single 300"}},
    {"pressed for the least time", both, {{100, both}, {110, 0}}, {"single 110"}},
    {"across the turn of the clock", both, {{0xffffff00, both}, {0xffffff80, 0}, {0x10, both}},
        {"single 4294967168", "double 16"}},
    {"one modifier alone", option, {{100, option}, {150, 0}, {200, option}}, {"single 150", "double 200"}},
    {"fewer than all", both, {{100, control}, {150, 0}, {200, control}, {250, 0}}, {}},
    {"no modifiers chosen", 0, {{100, both}, {150, 0}, {200, both}, {250, 0}}, {}},
};

class ChordPressesCases : public testing::TestWithParam<Case>
{
};

} // namespace

TEST_P(ChordPressesCases, areToldAsTheyAreMeant)
{
    ChordPresses chord;
    chord.setModifiers(GetParam().modifiers);
    QStringList told;
    for (const Step &step : GetParam().steps) {
        if (step.held == somethingElse) {
            chord.somethingElseWasPressed(step.time);
            continue;
        }
        const auto outcome = chord.modifiersDidChange(step.held, step.time);
        if (outcome != ChordPresses::Outcome::Nothing)
            told.append(text(outcome, step.time));
    }
    EXPECT_EQ(told, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(All, ChordPressesCases, testing::ValuesIn(cases));

TEST(ChordPresses, waitForOtherKeysFromTheFirstTimeOnUntilTheyAreTooLate)
{
    ChordPresses chord;
    chord.setModifiers(both);
    EXPECT_FALSE(chord.isWaiting(100));
    chord.modifiersDidChange(control, 100);
    EXPECT_FALSE(chord.isWaiting(100));
    chord.modifiersDidChange(both, 110);
    EXPECT_TRUE(chord.isWaiting(510));
    EXPECT_FALSE(chord.isWaiting(511));
    chord.somethingElseWasPressed(115);
    EXPECT_FALSE(chord.isWaiting(120));
}

TEST(ChordPresses, startAnewWithOtherModifiers)
{
    ChordPresses chord;
    chord.setModifiers(both);
    chord.modifiersDidChange(both, 100);
    chord.setModifiers(option);
    EXPECT_EQ(chord.modifiersDidChange(0, 150), ChordPresses::Outcome::Nothing);
    EXPECT_EQ(chord.modifiersDidChange(option, 200), ChordPresses::Outcome::Nothing);
    EXPECT_EQ(chord.modifiersDidChange(0, 250), ChordPresses::Outcome::Single);
}
