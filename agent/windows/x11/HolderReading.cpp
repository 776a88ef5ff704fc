#include "agent/windows/x11/HolderReading.h"

#include <utility>
#include <vector>

namespace {

// Managers use one or two.
constexpr int mostAncestors = 8;

/// A window, and the ancestor of it that has been reached.
using Climb = std::pair<xcb_window_t, xcb_window_t>;

/// Each climb one step up; those that have arrived or lead nowhere are done.
std::vector<Climb> climbed(xcb_connection_t *server, xcb_window_t root, const std::vector<Climb> &climbs,
    QHash<xcb_window_t, xcb_window_t> *holders)
{
    std::vector<xcb_query_tree_cookie_t> asked;
    for (const auto &[window, ancestor] : climbs)
        asked.push_back(xcb_query_tree(server, ancestor));
    std::vector<Climb> further;
    for (size_t place = 0; place < climbs.size(); ++place) {
        const auto reply = fromServer(xcb_query_tree_reply(server, asked[place], nullptr));
        const auto &[window, ancestor] = climbs[place];
        if (reply && reply->parent == root)
            holders->insert(window, ancestor);
        else if (reply && reply->parent != XCB_WINDOW_NONE)
            further.emplace_back(window, reply->parent);
    }
    return further;
}

} // namespace

QHash<xcb_window_t, xcb_window_t> holdersOf(
    xcb_connection_t *server, xcb_window_t root, const QList<xcb_window_t> &windows)
{
    QHash<xcb_window_t, xcb_window_t> holders;
    std::vector<Climb> climbs;
    for (const xcb_window_t window : windows)
        climbs.emplace_back(window, window);
    for (int step = 0; step < mostAncestors && !climbs.empty(); ++step)
        climbs = climbed(server, root, climbs, &holders);
    return holders;
}

QHash<xcb_window_t, QRect> holderRects(xcb_connection_t *server, xcb_window_t root, const QList<xcb_window_t> &windows)
{
    const auto holders = holdersOf(server, root, windows);
    std::vector<std::pair<xcb_window_t, xcb_get_geometry_cookie_t>> asked;
    for (auto one = holders.cbegin(); one != holders.cend(); ++one)
        asked.emplace_back(one.key(), xcb_get_geometry(server, one.value()));
    QHash<xcb_window_t, QRect> rects;
    for (const auto &[window, cookie] : asked) {
        if (const auto reply = fromServer(xcb_get_geometry_reply(server, cookie, nullptr))) {
            const int borders = 2 * reply->border_width;
            rects.insert(window, QRect(reply->x, reply->y, reply->width + borders, reply->height + borders));
        }
    }
    return rects;
}
