#include "agent/actions/x11/RedirectedWindow.h"

#include <xcb/composite.h>
#include <xcb/damage.h>

namespace {

// The first that names a window's pixels.
constexpr quint32 compositeMajor = 0, compositeMinor = 2;
constexpr quint32 damageMajor = 1, damageMinor = 1;

QRect rectOf(const xcb_get_geometry_reply_t &geometry)
{
    const int borders = 2 * geometry.border_width;
    return {geometry.x, geometry.y, geometry.width + borders, geometry.height + borders};
}

/// None below 0: a window that has just moved or changed its size is taken with all that there is.
QMargins marginsAround(const QRect &inside, const QRect &whole)
{
    if (!whole.contains(inside))
        return {};
    return {inside.left() - whole.left(), inside.top() - whole.top(), whole.right() - inside.right(),
        whole.bottom() - inside.bottom()};
}

} // namespace

RedirectedWindow::RedirectedWindow(ActionConnection &connection, const WindowDescription &window)
    : connection_(connection)
{
    if (!connection.isLost() && findExtensions())
        redirect(window);
}

/// Each has to be told a version before anything else.
bool RedirectedWindow::findExtensions()
{
    xcb_connection_t *const server = connection_.server();
    xcb_prefetch_extension_data(server, &xcb_composite_id);
    xcb_prefetch_extension_data(server, &xcb_damage_id);
    const auto *composite = connection_.extension(&xcb_composite_id);
    const auto *damage = connection_.extension(&xcb_damage_id);
    if (!composite || !damage)
        return false;
    const auto askedComposite = xcb_composite_query_version(server, compositeMajor, compositeMinor);
    const auto askedDamage = xcb_damage_query_version(server, damageMajor, damageMinor);
    const auto compositeVersion = fromServer(xcb_composite_query_version_reply(server, askedComposite, nullptr));
    const auto damageVersion = fromServer(xcb_damage_query_version_reply(server, askedDamage, nullptr));
    const bool names = compositeVersion
        && (compositeVersion->major_version > compositeMajor || compositeVersion->minor_version >= compositeMinor);
    if (names && damageVersion)
        damageEvent_ = quint8(damage->first_event + XCB_DAMAGE_NOTIFY);
    return isPossible();
}

void RedirectedWindow::redirect(const WindowDescription &window)
{
    xcb_connection_t *const server = connection_.server();
    const xcb_window_t holder = connection_.holderOf(window.windowID);
    if (holder == XCB_WINDOW_NONE)
        return;
    const auto askedState = xcb_get_window_attributes(server, holder);
    const auto askedPlace = xcb_get_geometry(server, holder);
    const auto state = fromServer(xcb_get_window_attributes_reply(server, askedState, nullptr));
    const auto place = fromServer(xcb_get_geometry_reply(server, askedPlace, nullptr));
    if (!state || !place || state->map_state != XCB_MAP_STATE_VIEWABLE)
        return;
    holder_ = holder;
    visual_ = state->visual;
    margins_ = marginsAround(window.frameRect, rectOf(*place));
    const quint32 events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(server, holder, XCB_CW_EVENT_MASK, &events);
    damage_ = xcb_generate_id(server);
    xcb_damage_create(server, damage_, holder, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_composite_redirect_window(server, holder, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    connection_.flush();
}

bool RedirectedWindow::isDamage(const xcb_generic_event_t &event) const
{
    return (event.response_type & eventTypeMask) == damageEvent_;
}

void RedirectedWindow::repair()
{
    xcb_damage_subtract(connection_.server(), damage_, XCB_NONE, XCB_NONE);
}

std::optional<WindowPixmap> RedirectedWindow::pixmap() const
{
    xcb_connection_t *const server = connection_.server();
    WindowPixmap pixmap{xcb_generate_id(server), {}, {}};
    const auto named = xcb_composite_name_window_pixmap_checked(server, holder_, pixmap.id);
    const auto asked = xcb_get_geometry(server, pixmap.id);
    const bool isNamed = !fromServer(xcb_request_check(server, named));
    const auto geometry = fromServer(xcb_get_geometry_reply(server, asked, nullptr));
    if (!isNamed || !geometry)
        return std::nullopt;
    pixmap.size = {geometry->width, geometry->height};
    const QRect whole({}, pixmap.size), frame = whole.marginsRemoved(margins_);
    pixmap.frame = frame.isEmpty() ? whole : frame;
    return pixmap;
}
