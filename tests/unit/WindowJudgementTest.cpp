// What follows from what a window says of itself.

#include "agent/windows/x11/WindowJudgement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

/// Numbers that all differ.
WindowAtoms numberedAtoms()
{
    WindowAtoms atoms{};
    auto *number = reinterpret_cast<xcb_atom_t *>(&atoms);
    for (size_t place = 0; place < sizeof(atoms) / sizeof(xcb_atom_t); ++place)
        number[place] = xcb_atom_t(1000 + place);
    return atoms;
}

class WindowJudgement : public testing::Test
{
protected:
    WindowJudgement()
    {
        facts.windowID = 1;
        facts.content = {200, 150, 300, 200};
    }
    WindowIgnored ignored() const { return describe(facts, surroundings).windowIsIgnored; }
    QRect seen() const { return describe(facts, surroundings).windowRect; }

    WindowFacts facts;
    WindowSurroundings surroundings{numberedAtoms(), {}, 0, {{QRect(0, 0, 1000, 800)}}};
    const WindowAtoms &atoms = surroundings.atoms;
};

} // namespace

TEST_F(WindowJudgement, takesTheFirstTypeThatItKnows)
{
    const struct
    {
        QList<quint32> types;
        WindowIgnored expected;
    } rows[]{
        {{}, WindowIgnored::No},
        {{1}, WindowIgnored::No},
        {{atoms.typeNormal}, WindowIgnored::No},
        {{atoms.typeUtility}, WindowIgnored::No},
        {{atoms.typeDialog}, WindowIgnored::No},
        {{1, atoms.typeDock}, WindowIgnored::Type},
        {{atoms.typeDock, atoms.typeNormal}, WindowIgnored::Type},
        {{atoms.typeNormal, atoms.typeDock}, WindowIgnored::No},
        {{atoms.typeDesktop}, WindowIgnored::Type},
        {{atoms.typeToolbar}, WindowIgnored::Type},
        {{atoms.typeMenu}, WindowIgnored::Type},
        {{atoms.typeDropdownMenu}, WindowIgnored::Type},
        {{atoms.typePopupMenu}, WindowIgnored::Type},
        {{atoms.typeSplash}, WindowIgnored::Type},
        {{atoms.typeTooltip}, WindowIgnored::Type},
        {{atoms.typeNotification}, WindowIgnored::Type},
        {{atoms.typeCombo}, WindowIgnored::Type},
        {{atoms.typeDragged}, WindowIgnored::Type},
    };
    for (const auto &[types, expected] : rows) {
        facts.types = types;
        EXPECT_EQ(ignored(), expected) << testing::PrintToString(types);
    }
}

TEST_F(WindowJudgement, leavesOutWhatTaskBarsLeaveOutButNoDialog)
{
    facts.states = {atoms.stateNotInTaskbar};
    EXPECT_EQ(ignored(), WindowIgnored::NotInTaskbar);
    facts.types = {atoms.typeUtility};
    EXPECT_EQ(ignored(), WindowIgnored::NotInTaskbar);
    facts.types = {atoms.typeDialog};
    EXPECT_EQ(ignored(), WindowIgnored::No);
    facts.types = {};
    facts.isTransient = true;
    EXPECT_EQ(ignored(), WindowIgnored::No);
}

TEST_F(WindowJudgement, knowsAnotherDesktopFromAllDesktops)
{
    EXPECT_EQ(ignored(), WindowIgnored::No);
    facts.desktop = 1;
    EXPECT_EQ(ignored(), WindowIgnored::OtherDesktop);
    facts.desktop = 0xffffffff;
    EXPECT_EQ(ignored(), WindowIgnored::No);
    facts.desktop = 1;
    surroundings.currentDesktop = std::nullopt;
    EXPECT_EQ(ignored(), WindowIgnored::No);
}

TEST_F(WindowJudgement, keepsShadedWindowsApartFromMinimisedOnes)
{
    facts.states = {atoms.stateHidden};
    EXPECT_EQ(ignored(), WindowIgnored::Minimised);
    EXPECT_TRUE(describe(facts, surroundings).isMinimised);
    facts.states = {atoms.stateHidden, atoms.stateShaded};
    EXPECT_EQ(ignored(), WindowIgnored::No);
    EXPECT_TRUE(needsHolder(facts, atoms));
}

TEST_F(WindowJudgement, seesTheFrameOrWithinTheShadowAndNeverBoth)
{
    EXPECT_EQ(seen(), facts.content);
    EXPECT_TRUE(needsHolder(facts, atoms));
    facts.shadow = QMargins(20, 10, 30, 40);
    EXPECT_EQ(seen(), QRect(220, 160, 250, 150));
    EXPECT_FALSE(needsHolder(facts, atoms));
    facts.frame = QMargins(0, 0, 0, 0);
    EXPECT_EQ(seen(), QRect(220, 160, 250, 150)) << "no frame";
    facts.frame = QMargins(2, 20, 2, 2);
    EXPECT_EQ(seen(), QRect(198, 130, 304, 222));
    facts.frame = std::nullopt;
    facts.shadow = QMargins(200, 0, 200, 0);
    EXPECT_EQ(seen(), facts.content) << "a shadow beyond the window";
    facts.holder = QRect(190, 140, 320, 220);
    EXPECT_EQ(seen(), *facts.holder);
}

TEST_F(WindowJudgement, seesWhatTheMonitorsShow)
{
    surroundings.monitors = {{QRect(0, 0, 400, 300)}, {QRect(400, 200, 400, 300)}};
    EXPECT_EQ(seen(), QRect(200, 150, 300, 200)) << "on both";
    facts.content = {500, 100, 100, 150};
    EXPECT_EQ(seen(), QRect(500, 200, 100, 50));
    facts.content = {500, 0, 100, 50};
    EXPECT_TRUE(seen().isEmpty());
}

TEST_F(WindowJudgement, leavesOutExcludedPrograms)
{
    surroundings.choice.excludedApplications = {"Panel", "clock"};
    EXPECT_EQ(ignored(), WindowIgnored::No);
    facts.program = {"main", "panel"};
    EXPECT_EQ(ignored(), WindowIgnored::Program);
    facts.program = {"clock", "Other"};
    EXPECT_EQ(ignored(), WindowIgnored::Program);
    facts.program = {"clocks", "Other"};
    EXPECT_EQ(ignored(), WindowIgnored::No);
}
