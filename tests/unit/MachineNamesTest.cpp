// What a machine is called by its model identifier.

#include "crashreporter/MachineNames.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

std::string name(const char *identifier)
{
    return machineNameOf(QString::fromUtf8(identifier)).toStdString();
}

} // namespace

TEST(MachineNames, areSixtyTwoInAscendingOrder)
{
    EXPECT_EQ(machineNames().size(), 62U);
    const auto isBefore = [](const MachineName &left, const MachineName &right) {
        return qstrcmp(left.key, right.key) < 0;
    };
    EXPECT_TRUE(std::is_sorted(machineNames().begin(), machineNames().end(), isBefore));
}

TEST(MachineNames, ofAModelAreItsOwn)
{
    EXPECT_EQ(name("PowerMac3,1"), "PowerMac G4 AGP Graphics");
    EXPECT_EQ(name("PowerBook3,2"), "PowerBook G4 (Titanium)");
    EXPECT_EQ(name("PowerMac1,1"), "Blue & White G3");
    EXPECT_EQ(name("RackMac3,1"), "XServe G5");
    EXPECT_EQ(name("AAPL,PowerMac G3"), "PowerMac G3 (Silk)");
    EXPECT_EQ(name("AAPL,e407"), "Alchemy(Performa 6400 logic-board design)");
    EXPECT_EQ(name("iMac,1"), "iMac (first generation)") << "it comes after its family";
}

TEST(MachineNames, ofAWholeFamilyTellTheFamilysKeyToo)
{
    EXPECT_EQ(name("PowerMac10,1"), "PowerMac (PowerMac)");
    EXPECT_EQ(name("AAPL,xyz"), "Yikes! Old machine (AAPL)");
    EXPECT_EQ(name("PowerBook7,7"), "PowerBook or iBook (PowerBook)");
    EXPECT_EQ(name("RackMac"), "XServe (RackMac)");
    EXPECT_EQ(name("Macmini"), "Mac Mini (Macmini)");
}

TEST(MachineNames, ofAKeyAnywhereInTheIdentifierCount)
{
    EXPECT_EQ(name("an iMac of sorts"), "iMac (iMac)");
    EXPECT_EQ(name("PowerMac3,10"), "PowerMac G4 AGP Graphics");
    EXPECT_EQ(name("powermac3,1"), "Unknown (powermac3,1)") << "letters count as they are";
}

TEST(MachineNames, ofTwoKeysTheLaterCountsUnlessTheEarlierIsAllOfIt)
{
    EXPECT_EQ(name("PowerMac3,1 PowerMac7,2"), "PowerMac G5");
    EXPECT_EQ(name("PowerMac7,2 PowerMac3,1"), "PowerMac G5");
    EXPECT_EQ(name("Macmini iMac"), "iMac (iMac)");
    for (const MachineName &row : machineNames()) {
        const QString expected = QLatin1StringView(row.name);
        EXPECT_TRUE(machineNameOf(QLatin1StringView(row.key)).startsWith(expected)) << row.key;
    }
}

TEST(MachineNames, ofAnythingElseAreUnknown)
{
    EXPECT_EQ(name("Zorro9,9"), "Unknown (Zorro9,9)");
    EXPECT_EQ(name("Standard PC (i440FX + PIIX, 1996)"), "Unknown (Standard PC (i440FX + PIIX, 1996))");
    EXPECT_EQ(name(""), "Unknown ()");
    EXPECT_EQ(name("%1 %2"), "Unknown (%1 %2)");
}
