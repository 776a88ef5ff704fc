#include "agent/windows/x11/WindowReading.h"

#include "agent/windows/x11/ClientReading.h"
#include "agent/windows/x11/HolderReading.h"
#include "agent/windows/x11/MonitorReading.h"
#include "agent/windows/x11/WindowJudgement.h"

#include <QSet>
#include <algorithm>
#include <vector>

namespace {

// Nobody has so many; a list that is longer is damaged.
constexpr quint32 mostWindows = 16384;
constexpr quint32 mostSupported = 1024;

/// What the manager says on the root.
struct Desktop
{
    xcb_window_t manager = XCB_WINDOW_NONE; ///< a window of its own by which it shows that it runs
    bool tellsClients = false; ///< some take the list away with the last window
    QList<xcb_window_t> clients; ///< bottom to top, or oldest first
    bool isStack = false;
    quint32 activeWindow = XCB_WINDOW_NONE;
    std::optional<quint32> currentDesktop;
};

bool isPermutation(const QList<xcb_window_t> &left, const QList<xcb_window_t> &right)
{
    return QSet(left.cbegin(), left.cend()) == QSet(right.cbegin(), right.cend());
}

Desktop readDesktop(const WindowServer &server)
{
    const auto ask = [&server](xcb_atom_t property, quint32 units) {
        return askProperty(server.connection, server.screen->root, property, units);
    };
    const auto supported = ask(server.atoms.supported, mostSupported);
    const auto manager = ask(server.atoms.supportingManager, 1);
    const auto byStack = ask(server.atoms.clientsByStack, mostWindows);
    const auto byAge = ask(server.atoms.clientList, mostWindows);
    const auto active = ask(server.atoms.activeWindow, 1);
    const auto current = ask(server.atoms.currentDesktop, 1);
    const auto number = [&server](xcb_get_property_cookie_t asked, xcb_atom_t type) {
        return numberOf(ReceivedProperty(server.connection, asked).bytes(), type);
    };
    const auto list = [&server](xcb_get_property_cookie_t asked, xcb_atom_t type) {
        return numbersOf(ReceivedProperty(server.connection, asked).bytes(), type);
    };
    Desktop desktop;
    const auto features = list(supported, XCB_ATOM_ATOM).value_or(QList<quint32>());
    desktop.manager = number(manager, XCB_ATOM_WINDOW).value_or(XCB_WINDOW_NONE);
    const auto stack = list(byStack, XCB_ATOM_WINDOW);
    const auto clients = list(byAge, XCB_ATOM_WINDOW);
    desktop.tellsClients = stack || clients || features.contains(server.atoms.clientList);
    desktop.clients = stack.value_or(QList<xcb_window_t>());
    // Some write the stack at the next change of it only, and a new window is not in it then.
    desktop.isStack = stack && (!clients || isPermutation(*stack, *clients));
    if (!desktop.isStack)
        desktop.clients += clients.value_or(QList<xcb_window_t>());
    desktop.activeWindow = number(active, XCB_ATOM_WINDOW).value_or(XCB_WINDOW_NONE);
    desktop.currentDesktop = number(current, XCB_ATOM_CARDINAL);
    return desktop;
}

/// Each once, in the same order.
QList<xcb_window_t> withoutRepetitions(const QList<xcb_window_t> &windows, xcb_window_t root)
{
    QSet<xcb_window_t> seen{XCB_WINDOW_NONE, root};
    QList<xcb_window_t> once;
    for (const xcb_window_t window : windows) {
        if (!seen.contains(window))
            once.append(window);
        seen.insert(window);
    }
    return once;
}

/// As the windows that hold them lie on each other.
QList<xcb_window_t> orderedByStack(const WindowServer &server, QList<xcb_window_t> windows)
{
    const xcb_window_t root = server.screen->root;
    const auto tree =
        fromServer(xcb_query_tree_reply(server.connection, xcb_query_tree(server.connection, root), nullptr));
    const auto holders = holdersOf(server.connection, root, windows);
    QHash<xcb_window_t, int> places;
    for (int place = 0; tree && place < xcb_query_tree_children_length(tree.get()); ++place)
        places.insert(xcb_query_tree_children(tree.get())[place], place);
    std::stable_sort(windows.begin(), windows.end(), [&](xcb_window_t left, xcb_window_t right) {
        return places.value(holders.value(left), -1) < places.value(holders.value(right), -1);
    });
    return windows;
}

/// Takes the answers of all; windows that have gone are left out.
QList<WindowFacts> takeAll(const WindowServer &server, std::vector<ClientReading> &readings)
{
    QList<WindowFacts> all;
    QList<xcb_window_t> unclear;
    for (ClientReading &reading : readings) {
        const auto facts = reading.take(server.atoms);
        if (!facts)
            continue;
        if (needsHolder(*facts, server.atoms))
            unclear.append(facts->windowID);
        all.append(*facts);
    }
    const auto rects = holderRects(server.connection, server.screen->root, unclear);
    for (WindowFacts &facts : all) {
        if (const auto rect = rects.constFind(facts.windowID); rect != rects.cend())
            facts.holder = *rect;
    }
    return all;
}

QList<WindowDescription> described(const QList<WindowFacts> &bottomToTop, const WindowSurroundings &surroundings)
{
    QList<WindowDescription> windows;
    for (auto facts = bottomToTop.crbegin(); facts != bottomToTop.crend(); ++facts) {
        WindowDescription window = describe(*facts, surroundings);
        window.windowOrder = int(windows.size());
        windows.append(window);
    }
    return windows;
}

/// Of one that has ended without a word the root still tells all.
bool isRunning(const WindowServer &server, xcb_window_t manager, xcb_get_property_cookie_t asked)
{
    const auto told = numberOf(ReceivedProperty(server.connection, asked).bytes(), XCB_ATOM_WINDOW);
    return manager != XCB_WINDOW_NONE && told == manager;
}

} // namespace

std::optional<WindowWorld> readWindows(const WindowServer &server, const WindowChoice &choice, WindowFailure *failure)
{
    MonitorReading monitors(server.connection, server.screen, server.tellsMonitors);
    const Desktop desktop = readDesktop(server);
    monitors.goOn();

    auto clients = withoutRepetitions(desktop.clients, server.screen->root);
    if (!desktop.isStack)
        clients = orderedByStack(server, clients);
    const auto manager = askProperty(server.connection, desktop.manager, server.atoms.supportingManager, 1);
    std::vector<ClientReading> readings;
    for (const xcb_window_t client : clients)
        readings.emplace_back(server.connection, server.atoms, server.screen->root, client);

    const WindowSurroundings surroundings{server.atoms, choice, desktop.currentDesktop, monitors.finish()};
    const bool hasManager = isRunning(server, desktop.manager, manager);
    const QList<WindowFacts> facts = takeAll(server, readings);
    if (xcb_connection_has_error(server.connection)) {
        *failure = WindowFailure::ServerHasGone;
        return std::nullopt;
    }
    if (!hasManager || !desktop.tellsClients) {
        *failure = hasManager ? WindowFailure::SilentManager : WindowFailure::NoManager;
        return std::nullopt;
    }
    return WindowWorld{described(facts, surroundings), surroundings.monitors, desktop.activeWindow};
}
