#include "agent/windows/x11/WindowActivation.h"

#include "agent/windows/x11/PropertyRequest.h"

#include <utility>

namespace {

constexpr int mostMilliseconds = 500;
// After which nothing is watched any more: the server takes a while for that, and the window just turned to would have
// to wait.
constexpr int calmMilliseconds = 150;
constexpr int mostRepetitions = 3;
constexpr quint32 fromUserByPager = 2;
constexpr quint32 onAllDesktops = 0xffffffff;
constexpr quint32 mostStates = 64, mostHints = 9;
// Of dialogs on dialogs.
constexpr int mostParents = 8;

std::optional<quint32> take(const WindowServer &server, xcb_get_property_cookie_t asked, xcb_atom_t type)
{
    return numberOf(ReceivedProperty(server.connection, asked).bytes(), type);
}

} // namespace

WindowActivation::WindowActivation(const WindowServer &server)
    : server_(server), input_(xcb_get_file_descriptor(server.connection), QSocketNotifier::Read)
{
    input_.setEnabled(false);
    limit_.setSingleShot(true);
    calm_.setSingleShot(true);
    calm_.setInterval(calmMilliseconds);
    connect(&input_, &QSocketNotifier::activated, this, &WindowActivation::lookAtWhatCameMeanwhile);
    connect(&calm_, &QTimer::timeout, this, [this] { watchRoot(false); });
    connect(&limit_, &QTimer::timeout, this, [this] { finish(isActive()); });
}

void WindowActivation::expect(bool isExpected)
{
    isExpected_ = isExpected;
    if (isExpected)
        watchRoot(true);
    else if (isWatching_ && window_ == XCB_WINDOW_NONE)
        calm_.start();
}

void WindowActivation::begin(xcb_window_t window, xcb_timestamp_t time)
{
    hasActiveWindowChanged();
    window_ = window;
    lastChange_ = XCB_CURRENT_TIME;
    const bool isAsked = time != XCB_CURRENT_TIME && ask(time);
    limit_.start(isAsked ? mostMilliseconds : 0);
    // It may be the active one already, and some of the manager's answer may have been read just now.
    if (isAsked)
        QMetaObject::invokeMethod(this, &WindowActivation::look, Qt::QueuedConnection);
}

/// False where the window has gone.
bool WindowActivation::ask(xcb_timestamp_t time)
{
    const xcb_window_t root = server_.screen->root;
    const auto askedCurrent = askProperty(server_.connection, root, server_.atoms.currentDesktop, 1);
    const ReceivedProperty own(
        server_.connection, askProperty(server_.connection, window_, server_.atoms.windowDesktop, 1));
    const auto current = take(server_, askedCurrent, XCB_ATOM_CARDINAL);
    if (!own.isAnswered())
        return false;
    // First its desktop: else some managers refuse, and others bring the window to the desktop that is seen.
    const auto desktop = numberOf(own.bytes(), XCB_ATOM_CARDINAL);
    const bool isElsewhere = desktop && current && desktop != current && *desktop != onAllDesktops;
    timesToAskAgain_ = isElsewhere ? mostRepetitions : 0;
    if (isElsewhere) {
        // Here each change counts.
        watchRoot(true);
        send(root, server_.atoms.currentDesktop, {.data32 = {*desktop, time}});
    }
    askForFocus(time);
    // Last, as the server takes a while with many windows. What has changed by then is looked at anyway.
    watchRoot(true);
    return !xcb_connection_has_error(server_.connection);
}

void WindowActivation::askForFocus(xcb_timestamp_t time)
{
    send(window_, server_.atoms.activeWindow, {.data32 = {fromUserByPager, time, XCB_WINDOW_NONE}});
    xcb_flush(server_.connection);
}

void WindowActivation::send(xcb_window_t window, xcb_atom_t message, const xcb_client_message_data_t &data)
{
    constexpr quint32 toManager = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = message;
    event.data = data;
    xcb_send_event(server_.connection, false, server_.screen->root, toManager, reinterpret_cast<const char *>(&event));
}

void WindowActivation::watchRoot(bool isToWatch)
{
    calm_.stop();
    input_.setEnabled(isToWatch);
    if (std::exchange(isWatching_, isToWatch) == isToWatch)
        return;
    const quint32 events = isToWatch ? XCB_EVENT_MASK_PROPERTY_CHANGE : XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(server_.connection, server_.screen->root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(server_.connection);
}

void WindowActivation::lookAtWhatCameMeanwhile()
{
    const bool isToLook = hasActiveWindowChanged();
    if (xcb_connection_has_error(server_.connection))
        input_.setEnabled(false);
    if (window_ == XCB_WINDOW_NONE)
        return;
    if (xcb_connection_has_error(server_.connection))
        finish(false);
    else if (isToLook)
        look();
}

/// Takes all events.
bool WindowActivation::hasActiveWindowChanged()
{
    bool hasChanged = false;
    while (const auto event = fromServer(xcb_poll_for_event(server_.connection))) {
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        if ((event->response_type & eventTypeMask) != XCB_PROPERTY_NOTIFY || change->atom != server_.atoms.activeWindow)
            continue;
        hasChanged = true;
        lastChange_ = change->time;
    }
    return hasChanged;
}

void WindowActivation::look()
{
    // What comes in while an answer is waited for makes the socket readable no more.
    do {
        if (window_ == XCB_WINDOW_NONE)
            continue;
        if (isActive())
            finish(true);
        else if (lastChange_ != XCB_CURRENT_TIME && timesToAskAgain_-- > 0)
            // A manager that changes the desktop focuses a window there by itself, after which the server no longer
            // takes the earlier time.
            askForFocus(lastChange_);
    } while (hasActiveWindowChanged());
}

bool WindowActivation::isActive() const
{
    const auto asked = askProperty(server_.connection, server_.screen->root, server_.atoms.activeWindow, 1);
    const auto active = take(server_, asked, XCB_ATOM_WINDOW).value_or(XCB_WINDOW_NONE);
    return active != XCB_WINDOW_NONE && (active == window_ || isModalChild(active));
}

bool WindowActivation::hasClosed(xcb_window_t window) const
{
    const ReceivedProperty own(
        server_.connection, askProperty(server_.connection, window, server_.atoms.windowDesktop, 1));
    return !own.isAnswered() && !xcb_connection_has_error(server_.connection);
}

/// Of the window itself, or of all windows of its group where it belongs to none of them.
bool WindowActivation::isModalChild(xcb_window_t window) const
{
    if (!isModal(window))
        return false;
    for (int step = 0; step < mostParents; ++step) {
        const auto asked = askProperty(server_.connection, window, XCB_ATOM_WM_TRANSIENT_FOR, 1);
        const xcb_window_t parent = take(server_, asked, XCB_ATOM_WINDOW).value_or(XCB_WINDOW_NONE);
        if (parent == window_)
            return true;
        if (parent == XCB_WINDOW_NONE || parent == server_.screen->root)
            return isModal(window) && isOfGroup(window);
        window = parent;
    }
    return false;
}

bool WindowActivation::isModal(xcb_window_t window) const
{
    const auto asked = askProperty(server_.connection, window, server_.atoms.windowState, mostStates);
    const ReceivedProperty states(server_.connection, asked);
    return numbersOf(states.bytes(), XCB_ATOM_ATOM).value_or(QList<quint32>()).contains(server_.atoms.stateModal);
}

/// A group's leader may be one of its windows.
bool WindowActivation::isOfGroup(xcb_window_t window) const
{
    const auto leader = groupLeader(window);
    return leader && (leader == window_ || leader == groupLeader(window_));
}

std::optional<xcb_window_t> WindowActivation::groupLeader(xcb_window_t window) const
{
    const auto asked = askProperty(server_.connection, window, XCB_ATOM_WM_HINTS, mostHints);
    return groupLeaderOf(ReceivedProperty(server_.connection, asked).bytes());
}

void WindowActivation::finish(bool isActive)
{
    const xcb_window_t window = std::exchange(window_, XCB_WINDOW_NONE);
    limit_.stop();
    expect(isExpected_);
    if (isActive)
        Q_EMIT activated(window);
    else
        Q_EMIT notActivated(window, hasClosed(window));
}
