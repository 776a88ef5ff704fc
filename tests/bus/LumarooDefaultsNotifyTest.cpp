#include "BusRecorder.h"
#include "DefaultsProgram.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <gtest/gtest.h>

// A change made by hand reaches the settings window and the agent.

namespace {

const QString changed = "Lumaroo Preferences Changed";
const QString domainOfAgent = "com.quorvane.Lumaroo";

QList<BusNotification> bothSides(const QString &domain)
{
    return {{changed, "com.quorvane.LumarooAgent", {}, true}, {changed, domain, {}, true}};
}

} // namespace

TEST(LumarooDefaultsNotify, aChangeIsAnnouncedToTheWindowThenToTheAgent)
{
    BusRecorder recorder;
    EXPECT_EQ(runDefaults({"--notify", "write", "Debug", "-bool", "yes"}).status, 0);
    EXPECT_EQ(recorder.notifications(), bothSides(domainOfAgent));
    EXPECT_TRUE(CFPreferencesGetAppBooleanValue("Debug", domainOfAgent));
    recorder.clear();
    EXPECT_EQ(runDefaults({"delete", "Debug", "--notify"}).status, 0);
    EXPECT_EQ(recorder.notifications(), bothSides(domainOfAgent));
}

TEST(LumarooDefaultsNotify, aChangeOfAnotherDomainCarriesItsName)
{
    BusRecorder recorder;
    EXPECT_EQ(runDefaults({"--domain", "com.example.other", "import", "--notify"}, "<plist><dict/></plist>").status, 0);
    EXPECT_EQ(recorder.notifications(), bothSides("com.example.other"));
}

TEST(LumarooDefaultsNotify, withoutTheOptionNothingIsAnnounced)
{
    BusRecorder recorder;
    EXPECT_EQ(runDefaults({"write", "key", "value"}).status, 0);
    EXPECT_TRUE(recorder.notifications().isEmpty());
}

TEST(LumarooDefaultsNotify, aChangeThatFailedIsNotAnnounced)
{
    BusRecorder recorder;
    EXPECT_EQ(runDefaults({"delete", "absent", "--notify"}).status, 1);
    EXPECT_TRUE(recorder.notifications().isEmpty());
}
