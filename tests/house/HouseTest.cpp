#include "HouseRules.h"

#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {

const SourceTree &house()
{
    static const SourceTree tree(qEnvironmentVariable("LUMAROO_SOURCE"));
    return tree;
}

} // namespace

TEST(House, holdsEverySourceOfTheProject)
{
    EXPECT_TRUE(house().files().contains(QStringLiteral("pane/KTXLumarooPreferencePane.h")));
    EXPECT_TRUE(house().files().contains(QStringLiteral("tests/house/HouseTest.cpp")));
}

TEST(House, dependenciesPointOneWay)
{
    EXPECT_THAT(includesAgainstTheLayers(house()), IsEmpty());
}

TEST(House, noRoomReachesIntoAnother)
{
    EXPECT_THAT(includesOfOthersInternals(house()), IsEmpty());
}

TEST(House, signaturesAndArchivesAreTheUpdatersAlone)
{
    EXPECT_THAT(librariesOutOfTheirPlace(house()), IsEmpty());
}

TEST(House, roomsOfALibraryFormNoCircle)
{
    EXPECT_THAT(circlesBetweenRooms(house()), IsEmpty());
}

TEST(House, theHeadersOnTopAreTheContracts)
{
    EXPECT_THAT(headersThatExportNothing(house()), IsEmpty());
}

TEST(House, filesAreShort)
{
    EXPECT_THAT(filesThatAreTooLong(house()), IsEmpty());
}

TEST(House, functionsAreShort)
{
    EXPECT_THAT(functionsThatAreTooLong(house()), IsEmpty());
}
