#include "platform/appkit/NSBeep.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

TEST(TheBeep, needsNoXDisplay)
{
    ASSERT_EQ(QGuiApplication::platformName(), "offscreen");
    NSBeep();
}
