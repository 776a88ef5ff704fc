// How dense monitors are, and how often they show another picture.

#include "WindowsOnDesktop.h"
#include "platform/appkit/linux/WindowManagerMessage.h"
#include "platform/foundation/system/X11.h"

#include <xcb/randr.h>

using testing::ElementsAre;

namespace {

/// One monitor, on an X server that calls it a screen of no size.
class MonitorScales : public WindowsOnDesktop
{
protected:
    MonitorScales()
    {
        manager.set("_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager.id()});
        setOnRoot("_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager.id()});
        setOnRoot("_NET_CLIENT_LIST_STACKING", "WINDOW", {});
    }
    ~MonitorScales() override
    {
        for (const char *property : {"_NET_SUPPORTING_WM_CHECK", "_NET_CLIENT_LIST_STACKING", "RESOURCE_MANAGER"})
            removeFromRoot(property);
    }
    void prefer(const QByteArray &preferences)
    {
        xcb_change_property(server(), XCB_PROP_MODE_REPLACE, root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8,
            quint32(preferences.size()), preferences.constData());
        wait();
    }
    double scale()
    {
        const WindowWorld now = world();
        EXPECT_EQ(now.monitors.size(), 1);
        return now.monitors.value(0).scale;
    }
    /// Whether the server has taken to that mode.
    bool showPicturesPerSecond(quint32 rate);

    xcb_connection_t *server() const { return connection_.get(); }
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(server())).data->root; }

    WindowOfAnotherProgram manager{"Manager", {0, 0, 1, 1}};

private:
    void wait() { fromServer(xcb_get_input_focus_reply(server(), xcb_get_input_focus(server()), nullptr)); }

    const XConnection connection_ = connectToXServer();
};

bool MonitorScales::showPicturesPerSecond(quint32 rate)
{
    const auto resources = fromServer(xcb_randr_get_screen_resources_current_reply(
        server(), xcb_randr_get_screen_resources_current(server(), root()), nullptr));
    const xcb_randr_output_t output = xcb_randr_get_screen_resources_current_outputs(resources.get())[0];
    const xcb_randr_crtc_t crtc = xcb_randr_get_screen_resources_current_crtcs(resources.get())[0];
    xcb_randr_mode_info_t mode{};
    mode.width = mode.htotal = 1280;
    mode.height = mode.vtotal = 1024;
    mode.dot_clock = rate * mode.htotal * mode.vtotal;
    const QByteArray name = "test" + QByteArray::number(rate);
    mode.name_len = quint16(name.size());
    const auto made = fromServer(xcb_randr_create_mode_reply(
        server(), xcb_randr_create_mode(server(), root(), mode, quint32(name.size()), name.constData()), nullptr));
    if (!made)
        return false;
    xcb_randr_add_output_mode(server(), output, made->mode);
    const auto taken = fromServer(xcb_randr_set_crtc_config_reply(server(),
        xcb_randr_set_crtc_config(server(), crtc, XCB_CURRENT_TIME, resources->config_timestamp, 0, 0, made->mode,
            XCB_RANDR_ROTATION_ROTATE_0, 1, &output),
        nullptr));
    return taken && taken->status == XCB_RANDR_SET_CONFIG_SUCCESS;
}

} // namespace

TEST_F(MonitorScales, areOneWhereNothingTellsMore)
{
    EXPECT_EQ(scale(), 1);
}

TEST_F(MonitorScales, areWhatTheMonitorsSizeMakesThem)
{
    const QRect screen(0, 0, 1280, 1024);
    for (const auto &[dotsPerInch, expected] : {std::pair(96, 1.0), {192, 2.0}, {48, 1.0}, {1000, 4.0}}) {
        setMonitors({screen}, dotsPerInch);
        EXPECT_EQ(scale(), expected) << dotsPerInch;
    }
    prefer("Xft.dpi: 144\n");
    EXPECT_EQ(scale(), 1.5) << "but users know better";
    setMonitors({});
}

TEST_F(MonitorScales, areWhatTheUserPrefersInQuartersAndWithinReason)
{
    const std::pair<const char *, double> rows[]{{"Xft.dpi: 96\n", 1}, {"Xft.dpi: 144\n", 1.5}, {"Xft.dpi: 200\n", 2},
        {"Xft.dpi: 10\n", 1}, {"Xft.dpi: 5000\n", 4}, {"Xft.dpi: none\n", 1}};
    for (const auto &[preferences, expected] : rows) {
        prefer(preferences);
        EXPECT_EQ(scale(), expected) << preferences;
    }
}

TEST_F(MonitorScales, comeWithPicturesOftenOrSeldom)
{
    for (const quint32 rate : {75U, 30U}) {
        ASSERT_TRUE(showPicturesPerSecond(rate));
        EXPECT_NEAR(world().monitors.value(0).refreshRate, rate, 0.5);
    }
}
