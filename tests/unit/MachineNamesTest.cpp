// What a machine is called by its model identifier.

#include "crashreporter/MachineNames.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

std::string name(const char *identifier)
{
    return machineNameOf(QString::fromUtf8(identifier)).toStdString();
}

constexpr MachineName expectedNames[] = {
    {"AAPL", "Yikes! Old machine"},
    {"AAPL,3400/2400", "PowerBook 2400 or 3400"},
    {"AAPL,3500", "PowerBook G3"},
    {"AAPL,7200", "Power Macintosh 7200"},
    {"AAPL,7300", "Power Macintosh 7300"},
    {"AAPL,7500", "Power Macintosh 7500"},
    {"AAPL,8500", "Power Macintosh 8500"},
    {"AAPL,9500", "Power Macintosh 9500"},
    {"AAPL,Gossamer", "Power Macintosh G3 (Beige)"},
    {"AAPL,PowerBook1998", "PowerBook G3 (1998)"},
    {"AAPL,PowerMac G3", "PowerMac G3 (Silk)"},
    {"AAPL,ShinerESB", "Apple Network Server"},
    {"AAPL,e407", "Alchemy(Performa 6400 logic-board design)"},
    {"AAPL,e411", "Gazelle(5500)"},
    {"MacBookPro2,2", "MacBook Pro"},
    {"Macmini", "Mac Mini"},
    {"Macmini1,1", "Mac Mini"},
    {"PowerBook", "PowerBook or iBook"},
    {"PowerBook1,1", "PowerBook G3 (Bronze Keyboard)"},
    {"PowerBook2,1", "iBook"},
    {"PowerBook2,2", "iBook FireWire"},
    {"PowerBook3,1", "PowerBook G3 (FireWire)"},
    {"PowerBook3,2", "PowerBook G4 (Titanium)"},
    {"PowerBook3,3", "PowerBook G4 (Gigabit Ethernet)"},
    {"PowerBook3,4", "PowerBook G4 (DVI)"},
    {"PowerBook3,5", "PowerBook G4 (1GHz/867MHz)"},
    {"PowerBook4,1", "iBook (Dual USB)"},
    {"PowerBook4,2", "iBook (Opaque 16MB VRAM)"},
    {"PowerBook4,3", "iBook (32MB VRAM)"},
    {"PowerBook4,4", "iBook 2 (w/ or w/o 14in LDC)"},
    {"PowerBook5,1", "PowerBook G4 (17in)"},
    {"PowerBook5,2", "PowerBook G4 (15in FireWire 800)"},
    {"PowerBook5,3", "PowerBook G4 (17in 1.33GHz)"},
    {"PowerBook6,1", "PowerBook G4 (Aluminum 12in)"},
    {"PowerBook6,2", "PowerBook G4 (Aluminum 12in)"},
    {"PowerBook6,3", "iBook G4"},
    {"PowerMac", "PowerMac"},
    {"PowerMac1,1", "Blue & White G3"},
    {"PowerMac1,2", "PowerMac G4 PCI Graphics"},
    {"PowerMac2,1", "iMac FireWire (CRT)"},
    {"PowerMac2,2", "iMac FireWire (CRT)"},
    {"PowerMac3,1", "PowerMac G4 AGP Graphics"},
    {"PowerMac3,2", "PowerMac G4 AGP Graphics"},
    {"PowerMac3,3", "PowerMac G4 AGP Graphics"},
    {"PowerMac3,4", "PowerMac G4 (QuickSilver)"},
    {"PowerMac3,5", "PowerMac G4 (QuickSilver)"},
    {"PowerMac3,6", "PowerMac G4 (Mirrored Drive Doors)"},
    {"PowerMac4,1", "iMac (Early 2001)"},
    {"PowerMac4,2", "iMac (Flat Panel)"},
    {"PowerMac4,4", "eMac"},
    {"PowerMac4,5", "iMac (Flat Panel 17in)"},
    {"PowerMac5,1", "PowerMac G4 Cube"},
    {"PowerMac5,2", "PowerMac G4 Cube"},
    {"PowerMac6,1", "iMac (Flat Panel 17in)"},
    {"PowerMac7,2", "PowerMac G5"},
    {"PowerMac7,3", "PowerMac G5"},
    {"RackMac", "XServe"},
    {"RackMac1,1", "XServe"},
    {"RackMac1,2", "XServe (Slot Load)"},
    {"RackMac3,1", "XServe G5"},
    {"iMac", "iMac"},
    {"iMac,1", "iMac (first generation)"},
};

} // namespace

TEST(MachineNames, areTheseForTheseKeys)
{
    ASSERT_EQ(machineNames().size(), std::size(expectedNames));
    for (size_t i = 0; i < std::size(expectedNames); ++i) {
        EXPECT_STREQ(machineNames()[i].key, expectedNames[i].key);
        EXPECT_STREQ(machineNames()[i].name, expectedNames[i].name) << expectedNames[i].key;
    }
}

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
