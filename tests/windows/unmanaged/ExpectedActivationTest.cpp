// What is watched while turning to a window is expected, and for how long. On a display where nobody else watches
// anything.

#include "SecondDisplay.h"
#include "Wait.h"
#include "agent/windows/WindowSystem.h"
#include "platform/foundation/system/X11.h"

#include <QAbstractEventDispatcher>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class ExpectedActivation : public testing::Test
{
protected:
    ExpectedActivation()
    {
        const QByteArray before = qgetenv("DISPLAY");
        qputenv("DISPLAY", display.name());
        windows = windowSystem();
        server_ = connectToXServer();
        qputenv("DISPLAY", before);
        root_ = xcb_setup_roots_iterator(xcb_get_setup(server_.get())).data->root;
        QObject::connect(windows.get(), &WindowSystem::activated, [this] { isTold = true; });
        QObject::connect(windows.get(), &WindowSystem::notActivated, [this] { isTold = true; });
    }
    bool isRootWatched() const
    {
        const auto asked = xcb_get_window_attributes(server_.get(), root_);
        const auto reply = fromServer(xcb_get_window_attributes_reply(server_.get(), asked, nullptr));
        return reply && reply->all_event_masks & XCB_EVENT_MASK_PROPERTY_CHANGE;
    }
    bool waitUntilWatched(bool isWatched)
    {
        return waitUntil([&] { return isRootWatched() == isWatched; });
    }
    /// As a window manager would.
    void sayActive(xcb_window_t window) const
    {
        const auto asked = xcb_intern_atom(server_.get(), false, 18, "_NET_ACTIVE_WINDOW");
        const auto name = fromServer(xcb_intern_atom_reply(server_.get(), asked, nullptr));
        xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, root_, name->atom, XCB_ATOM_WINDOW, 32, 1, &window);
        xcb_flush(server_.get());
    }
    /// One that is there.
    xcb_window_t window() const { return root_; }

    SecondDisplay display;
    std::unique_ptr<WindowSystem> windows;
    bool isTold = false;

private:
    XConnection server_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
};

/// How often this thread's event loop wakes up.
int wakeUpsWithin(int milliseconds)
{
    int wakeUps = 0;
    QEventLoop loop;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &loop, [&] { ++wakeUps; });
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    return wakeUps;
}

} // namespace

TEST_F(ExpectedActivation, watchesTheDesktopUntilItIsExpectedNoLonger)
{
    EXPECT_FALSE(isRootWatched());
    windows->expectActivation(true);
    EXPECT_TRUE(waitUntilWatched(true));
    windows->expectActivation(false);
    EXPECT_TRUE(isRootWatched()) << "a moment longer, as it may be expected again";
    EXPECT_TRUE(waitUntilWatched(false));
}

TEST_F(ExpectedActivation, watchesUntilItHasCome)
{
    windows->expectActivation(true);
    windows->activate(window(), 1);
    windows->expectActivation(false);
    bool wasWatched = true;
    EXPECT_TRUE(waitUntil([&] {
        wasWatched = wasWatched && isRootWatched();
        return isTold;
    }));
    EXPECT_TRUE(wasWatched);
    EXPECT_TRUE(waitUntilWatched(false));
}

TEST_F(ExpectedActivation, mayComeUnexpectedly)
{
    windows->activate(window(), 1);
    EXPECT_TRUE(waitUntilWatched(true));
    sayActive(window());
    EXPECT_TRUE(waitUntil([this] { return isTold; }));
    EXPECT_TRUE(waitUntilWatched(false));
}

TEST_F(ExpectedActivation, isNoWorkOnceTheDisplayHasGone)
{
    windows->expectActivation(true);
    display.end();
    EXPECT_LT(wakeUpsWithin(300), 20);
    windows->expectActivation(false);
    EXPECT_LT(wakeUpsWithin(300), 20);
}
