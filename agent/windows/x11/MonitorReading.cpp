#include "agent/windows/x11/MonitorReading.h"

#include "agent/windows/x11/PropertyRequest.h"

#include <algorithm>
#include <cmath>

namespace {

// The first that tells monitors.
constexpr quint32 randrMajor = 1, randrMinor = 5;
constexpr quint32 preferenceUnits = 16384; // of 4 bytes
constexpr double millimetresPerInch = 25.4;
constexpr double ordinaryDotsPerInch = 96;
constexpr double greatestScale = 4;

/// In quarters, as desktops offer it. A screen's millimetres are often wrong: what they lead to is kept within reason.
double scaleOf(double dotsPerInch)
{
    const double scale = std::round(dotsPerInch / ordinaryDotsPerInch * 4) / 4;
    return std::isfinite(scale) ? std::clamp(scale, 1.0, greatestScale) : 1;
}

double scaleOf(const xcb_randr_monitor_info_t *monitor)
{
    if (monitor->width_in_millimeters == 0)
        return 1;
    return scaleOf(monitor->width * millimetresPerInch / monitor->width_in_millimeters);
}

} // namespace

bool serverTellsMonitors(xcb_connection_t *server)
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(server, &xcb_randr_id);
    if (!extension || !extension->present)
        return false;
    const auto version = fromServer(
        xcb_randr_query_version_reply(server, xcb_randr_query_version(server, randrMajor, randrMinor), nullptr));
    return version && std::pair(version->major_version, version->minor_version) >= std::pair(randrMajor, randrMinor);
}

MonitorReading::MonitorReading(xcb_connection_t *server, const xcb_screen_t *screen, bool serverTellsMonitors)
    : server_(server), screen_(screen), serverTellsMonitors_(serverTellsMonitors)
{
    if (!serverTellsMonitors_)
        return;
    monitorsAsked_ = xcb_randr_get_monitors(server_, screen_->root, true);
    resourcesAsked_ = xcb_randr_get_screen_resources_current(server_, screen_->root);
    preferencesAsked_ = askProperty(server_, screen_->root, XCB_ATOM_RESOURCE_MANAGER, preferenceUnits);
}

void MonitorReading::goOn()
{
    if (!serverTellsMonitors_)
        return;
    takeMonitors();
    askRefreshRates();
}

void MonitorReading::takeMonitors()
{
    const auto reply = fromServer(xcb_randr_get_monitors_reply(server_, monitorsAsked_, nullptr));
    const auto chosen = dotsPerInchOf(ReceivedProperty(server_, preferencesAsked_).bytes());
    if (!reply)
        return;
    for (auto one = xcb_randr_get_monitors_monitors_iterator(reply.get()); one.rem > 0;
         xcb_randr_monitor_info_next(&one)) {
        const QRect rect(one.data->x, one.data->y, one.data->width, one.data->height);
        const xcb_randr_output_t *outputs = xcb_randr_monitor_info_outputs(one.data);
        if (!rect.isEmpty())
            found_.push_back({{rect, chosen ? scaleOf(*chosen) : scaleOf(one.data), Monitor().refreshRate},
                {outputs, outputs + xcb_randr_monitor_info_outputs_length(one.data)}});
    }
}

void MonitorReading::askRefreshRates()
{
    resources_ = fromServer(xcb_randr_get_screen_resources_current_reply(server_, resourcesAsked_, nullptr));
    if (!resources_)
        return;
    const xcb_randr_crtc_t *crtcs = xcb_randr_get_screen_resources_current_crtcs(resources_.get());
    for (int place = 0; place < xcb_randr_get_screen_resources_current_crtcs_length(resources_.get()); ++place)
        crtcsAsked_.push_back(xcb_randr_get_crtc_info(server_, crtcs[place], resources_->config_timestamp));
}

double MonitorReading::refreshRate(xcb_randr_mode_t mode) const
{
    for (auto one = xcb_randr_get_screen_resources_current_modes_iterator(resources_.get()); one.rem > 0;
         xcb_randr_mode_info_next(&one)) {
        const double dots = double(one.data->htotal) * one.data->vtotal;
        if (one.data->id == mode && dots > 0 && one.data->dot_clock > 0)
            return one.data->dot_clock / dots;
    }
    return Monitor().refreshRate;
}

void MonitorReading::takeRefreshRate(const xcb_randr_get_crtc_info_reply_t *crtc)
{
    const xcb_randr_output_t *outputs = xcb_randr_get_crtc_info_outputs(crtc);
    const auto *end = outputs + xcb_randr_get_crtc_info_outputs_length(crtc);
    for (Found &found : found_) {
        if (std::find_first_of(found.outputs.cbegin(), found.outputs.cend(), outputs, end) != found.outputs.cend())
            found.monitor.refreshRate = refreshRate(crtc->mode);
    }
}

QList<Monitor> MonitorReading::finish()
{
    for (const xcb_randr_get_crtc_info_cookie_t asked : crtcsAsked_) {
        if (const auto crtc = fromServer(xcb_randr_get_crtc_info_reply(server_, asked, nullptr)))
            takeRefreshRate(crtc.get());
    }
    QList<Monitor> monitors;
    for (const Found &found : found_)
        monitors.append(found.monitor);
    if (monitors.isEmpty())
        monitors.append({QRect(0, 0, screen_->width_in_pixels, screen_->height_in_pixels)});
    return monitors;
}
