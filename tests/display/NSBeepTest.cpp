#include "platform/appkit/NSBeep.h"
#include "BellListener.h"
#include "KeyPress.h"
#include "Wait.h"

#include <QWidget>
#include <gtest/gtest.h>

TEST(TheBeep, ringsTheDisplaysBellOnceEachTime)
{
    BellListener listener;
    NSBeep();
    EXPECT_EQ(listener.rings(), 1);
    NSBeep();
    NSBeep();
    EXPECT_EQ(listener.rings(), 3);
}

TEST(TheBeep, tellsADesktopThatFlashesWhichWindow)
{
    BellListener listener;
    NSBeep();
    EXPECT_EQ(listener.rings(), 1);
    EXPECT_EQ(listener.lastWindow(), xcb_window_t(XCB_NONE));
    QWidget window;
    window.show();
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(&window); }));
    NSBeep();
    EXPECT_EQ(listener.rings(), 2);
    EXPECT_EQ(listener.lastWindow(), xcb_window_t(window.winId()));
}
