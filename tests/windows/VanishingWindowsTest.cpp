// Windows that go while they are read, on each window manager.

#include "WindowsOnDesktop.h"

#include <atomic>
#include <thread>
#include <xcb/xcb.h>

namespace {

constexpr int readings = 1000;

/// A program that opens windows and destroys them, again and again, until it is told to stop.
class RestlessProgram
{
public:
    RestlessProgram() : thread_([this] { run(); }) { }
    ~RestlessProgram()
    {
        isToStop_ = true;
        thread_.join();
    }
    int rounds() const { return rounds_; }

private:
    void run()
    {
        const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> connection(
            xcb_connect(nullptr, nullptr), &xcb_disconnect);
        while (!isToStop_) {
            for (quint32 &window : windows_)
                window = open(connection.get());
            wait(connection.get());
            for (const quint32 window : windows_)
                xcb_destroy_window(connection.get(), window);
            wait(connection.get());
            ++rounds_;
        }
    }
    static quint32 open(xcb_connection_t *connection)
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        const quint32 window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 50, 50, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        xcb_map_window(connection, window);
        return window;
    }
    static void wait(xcb_connection_t *connection)
    {
        std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    }

    std::array<quint32, 5> windows_{};
    std::atomic<bool> isToStop_ = false;
    std::atomic<int> rounds_ = 0;
    std::thread thread_;
};

using VanishingWindows = WindowsOnDesktop;

} // namespace

TEST_F(VanishingWindows, areLeftOutAndOthersStay)
{
    WindowOfAnotherProgram staying("Staying");
    ASSERT_TRUE(staying.show());
    const RestlessProgram program;
    // Tells the manager's list, of which some windows have gone by the time that they are asked.
    for (int reading = 0; reading < readings; ++reading) {
        const WindowWorld now = world();
        const WindowDescription *found = now.window(staying.id());
        ASSERT_TRUE(found) << reading;
        EXPECT_EQ(found->windowName, "Staying");
        for (int place = 0; place < now.windows.size(); ++place)
            ASSERT_EQ(now.windows.at(place).windowOrder, place);
    }
    EXPECT_GT(program.rounds(), 0);
}

TEST_F(VanishingWindows, areLeftOutWhereTheListStillNamesThem)
{
    WindowOfAnotherProgram staying("Staying"), going("Going");
    ASSERT_TRUE(staying.show());
    ASSERT_TRUE(going.show());
    const quint32 gone = going.id();
    going.destroy();
    ASSERT_TRUE(waitUntil([gone] { return !listedWindows().contains(gone); }));
    setOnRoot("_NET_CLIENT_LIST", "WINDOW", {staying.id(), gone});
    setOnRoot("_NET_CLIENT_LIST_STACKING", "WINDOW", {staying.id(), gone});
    const WindowWorld now = world();
    setOnRoot("_NET_CLIENT_LIST", "WINDOW", {staying.id()});
    ASSERT_EQ(now.windows.size(), 1);
    EXPECT_EQ(now.windows.first().windowID, staying.id());
}
