// A window that is open when the application ends.

#include "ReportWindow.h"

#include "crashreporter/LivingReporters.h"

#include <QApplication>
#include <cstdlib>

namespace {

/// Called after the routines that were added later, and before the application object goes.
void requireThatNoneLives()
{
    if (livingReporters() != 0 || !QApplication::topLevelWidgets().isEmpty())
        std::abort();
}

} // namespace

TEST_F(ReportWindow, goesBeforeTheApplicationObject)
{
    qAddPostRoutine(&requireThatNoneLives);
    // Opened past the fixture, which would close it.
    ASSERT_TRUE(QBCrashReporter::initWithLogString("left open"));
    ASSERT_TRUE(QBCrashReporter::initInFeedbackMode());
    EXPECT_EQ(livingReporters(), 2);
}
