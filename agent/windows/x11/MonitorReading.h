#pragma once

#include "agent/windows/WindowWorld.h"
#include "platform/foundation/system/X11.h"

#include <vector>
#include <xcb/randr.h>

/// Reads the monitors in the two round trips that the reading of the windows takes anyway.
class MonitorReading
{
public:
    /// Sends the first requests.
    MonitorReading(xcb_connection_t *server, const xcb_screen_t *screen, bool serverTellsMonitors);
    /// Takes the first answers, and sends what they lead to.
    void goOn();
    /// Takes the last answers. Where the server tells no monitor, the whole screen is one.
    QList<Monitor> finish();

private:
    struct Found
    {
        Monitor monitor;
        std::vector<xcb_randr_output_t> outputs;
    };

    void takeMonitors();
    void askRefreshRates();
    void takeRefreshRate(const xcb_randr_get_crtc_info_reply_t *crtc);
    double refreshRate(xcb_randr_mode_t mode) const;

    xcb_connection_t *server_;
    const xcb_screen_t *screen_;
    bool serverTellsMonitors_;
    xcb_randr_get_monitors_cookie_t monitorsAsked_{};
    xcb_randr_get_screen_resources_current_cookie_t resourcesAsked_{};
    xcb_get_property_cookie_t preferencesAsked_{};
    FromServer<xcb_randr_get_screen_resources_current_reply_t> resources_ =
        fromServer(static_cast<xcb_randr_get_screen_resources_current_reply_t *>(nullptr));
    std::vector<xcb_randr_get_crtc_info_cookie_t> crtcsAsked_;
    std::vector<Found> found_;
};

/// Whether the server knows monitors (RandR 1.5).
bool serverTellsMonitors(xcb_connection_t *server);
