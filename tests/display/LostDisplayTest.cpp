#include "CapturedLog.h"
#include "Keyboard.h"
#include "SecondDisplay.h"

#include <gtest/gtest.h>

TEST(LostDisplay, keysAreNamedByTheDefaultLayoutFromThenOn)
{
    CapturedLog log;
    SecondDisplay display;
    qputenv("DISPLAY", display.name());
    setKeyboardLayout("de");
    ASSERT_TRUE(waitUntil([] { return translatedKey(6) == "y"; }));

    display.end();
    EXPECT_TRUE(waitUntil([] { return translatedKey(6) == "z"; }));
    EXPECT_EQ(translatedKey(126), QString(QChar(0x1E)));
    EXPECT_EQ(log.linesContaining("keyboard layout").size(), 1);
}
