#include "platform/foundation/Boundary.h"
#include "CapturedLog.h"
#include "platform/foundation/NSException.h"

#include <gtest/gtest.h>

TEST(Boundary, whatIsThrownIsLoggedAndTheCallerCarriesOn)
{
    CapturedLog log;
    EXPECT_FALSE(runAtBoundary("a place", [] { throw NSException("Name", "reason"); }));
    EXPECT_EQ(log.lines(), QStringList("lumaroo: a place: Name: reason"));
}

TEST(Boundary, whatThrowsNothingComesToItsEnd)
{
    CapturedLog log;
    bool ran = false;
    EXPECT_TRUE(runAtBoundary("a place", [&ran] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST(Boundary, anAssertionFailureHoldsWhereItFailedAndIsLogged)
{
    CapturedLog log;
    int object = 0;
    try {
        handleFailureInMethodObjectFileLineNumberDescription(
            "startAgent", &object, "KTXLumarooPreferencePane", 47, "No path");
    } catch (const AssertionFailure &failure) {
        EXPECT_EQ(failure.method(), "startAgent");
        EXPECT_EQ(failure.object(), &object);
        EXPECT_EQ(failure.file(), "KTXLumarooPreferencePane");
        EXPECT_EQ(failure.line(), 47);
        EXPECT_EQ(failure.description(), "No path");
        EXPECT_EQ(failure.name(), "NSInternalInconsistencyException");
    }
    EXPECT_EQ(log.lines(), QStringList("*** Assertion failure in startAgent, KTXLumarooPreferencePane:47"));
}
