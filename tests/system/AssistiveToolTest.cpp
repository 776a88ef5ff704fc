// The whole window as assistive tools read it on their bus, with the real settings and the real agent.

#include "KTXConstants.h"
#include "OtherClient.h"
#include "ProductOnHotKeyPage.h"
#include "ScreenReader.h"
#include "Wait.h"

#include <csignal>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;

constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;

std::string pathTo(const ToldObject &object)
{
    return (object.role + " “" + object.name + "”").toStdString();
}

class ToAnAssistiveTool : public ProductOnHotKeyPage
{
protected:
    QList<ToldObject> objects() const { return reader.objectsOf(settings->processId()); }
    /// The first object with a name in a role; one without a path where there is none.
    ToldObject object(const QString &role, const QString &name) const
    {
        for (const ToldObject &one : objects()) {
            if (one.role == role && one.name == name)
                return one;
        }
        return {};
    }
    std::vector<std::string> namesIn(const QString &role) const
    {
        std::vector<std::string> names;
        for (const ToldObject &one : objects()) {
            if (one.role == role)
                names.push_back(one.name.toStdString());
        }
        return names;
    }
    testing::AssertionResult opens()
    {
        open();
        if (reader.waitForText(settings->processId(), "All keys work."))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << reader.textsOf(settings->processId()).join(u'\n').toStdString();
    }

    ScreenReader reader;
    OtherClient other;
};

} // namespace

TEST_F(ToAnAssistiveTool, theWindowIsAFrameOfNamedGroups)
{
    ASSERT_TRUE(opens());
    EXPECT_THAT(namesIn("frame"), Contains("Lumaroo"));
    EXPECT_THAT(namesIn("panel"),
        IsSupersetOf({"What to do next", "Modifier keys", "Movement keys", "Action keys", "Order of windows",
            "Staying active", "Keep Lumaroo active", "Key repeat", "Overlay", "Automatic check", "Check by hand",
            "State of updates"}));
    quit();
}

TEST_F(ToAnAssistiveTool, popUpsSayWhatTheyHoldAndBelongToTheirLabel)
{
    ASSERT_TRUE(opens());
    std::vector<std::string> labels;
    for (const ToldObject &one : objects()) {
        if (one.role == "combo box")
            labels.push_back(reader.labelOf(settings->processId(), one).toStdString());
    }
    EXPECT_THAT(labels, ElementsAre("Left and right, go by:", "Up and down, go by:", "The key Under cycles:"));
    quit();
}

TEST_F(ToAnAssistiveTool, modifiersAreCalledByTheirNameWithoutItsSign)
{
    ASSERT_TRUE(opens());
    EXPECT_THAT(namesIn("check box"), IsSupersetOf({"Shift", "Control", "Alt", "Super"}));
    quit();
}

TEST_F(ToAnAssistiveTool, whatIsReadIsADocument)
{
    ASSERT_TRUE(opens());
    EXPECT_THAT(namesIn("document"), IsSupersetOf({"Help", "Credits"}));
    quit();
}

TEST_F(ToAnAssistiveTool, everyControlThatTheKeyboardReachesHasAName)
{
    ASSERT_TRUE(opens());
    int controls = 0;
    for (const ToldObject &one : objects()) {
        if (!one.isShown() || !one.isFocusable() || one.role == "filler")
            continue;
        ++controls;
        EXPECT_FALSE(one.name.isEmpty()) << pathTo(one);
    }
    EXPECT_GE(controls, 8);
    quit();
}

TEST_F(ToAnAssistiveTool, theSwitchIsAsLargeAsItIsDrawnAndTurnsTheAgentOff)
{
    ASSERT_TRUE(opens());
    const ToldObject on = object("check box", "Turn Lumaroo on or off");
    EXPECT_TRUE(on.isChecked());
    EXPECT_GE(on.place.width(), 36);
    EXPECT_GE(on.place.height(), 20);
    reader.press(settings->processId(), on);
    EXPECT_TRUE(agentEnds());
    EXPECT_TRUE(waitUntil([this] { return !object("check box", "Turn Lumaroo on or off").isChecked(); }));
    EXPECT_TRUE(reader.waitForText(settings->processId(), "Lumaroo Disabled"));
    quit();
}

TEST_F(ToAnAssistiveTool, slidersTellTheirUnit)
{
    ASSERT_TRUE(opens());
    const QString told = object("slider", "Delay before the first repeat").description;
    EXPECT_TRUE(told.endsWith(" s")) << qPrintable(told);
    quit();
}

TEST_F(ToAnAssistiveTool, aKeyThatAnotherProgramHasIsToldAtItsField)
{
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    open();
    const auto toldAtField = [this] { return object("text", "Key to move left").description; };
    EXPECT_TRUE(waitUntil([&] { return toldAtField().startsWith("Another program uses this key"); }))
        << qPrintable(toldAtField());
    EXPECT_EQ(object("text", "Key to move right").description.toStdString(), "Control Alt →. Press a key");
    quit();
}

TEST_F(ToAnAssistiveTool, theColorWindowSpeaksTheProgramsLanguage)
{
    qputenv("LANGUAGE", "de");
    qputenv("LC_ALL", "de_DE.UTF-8");
    open();
    qunsetenv("LANGUAGE");
    qunsetenv("LC_ALL");
    const auto well = [this] { return object("push button", "Farbe des Overlays"); };
    ASSERT_TRUE(waitUntil([&] { return !well().path.isEmpty(); }))
        << reader.textsOf(settings->processId()).join(u'\n').toStdString();
    reader.press(settings->processId(), well());
    EXPECT_TRUE(reader.waitForText(settings->processId(), "Farbauswahl"));
    settings->signal(SIGTERM);
    EXPECT_EQ(settings->exitStatus(), 0);
}
