#pragma once

#include "agent/windows/x11/WindowServer.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

/// Asks the window manager to turn to a window, and sees whether it has. Nothing is watched but then, while that is
/// expected, and a moment longer.
class WindowActivation : public QObject
{
    Q_OBJECT

public:
    explicit WindowActivation(const WindowServer &server);

    /// Begins to watch before it is begun, and ends that where none has.
    void expect(bool isExpected);
    /// Gives up what was begun before.
    void begin(xcb_window_t window, xcb_timestamp_t time);
    /// To be called whenever answers have been waited for on the same connection.
    void lookAtWhatCameMeanwhile();

Q_SIGNALS:
    void activated(quint32 windowID);
    void notActivated(quint32 windowID, bool hasClosed);

private:
    bool ask(xcb_timestamp_t time);
    void askForFocus(xcb_timestamp_t time);
    void send(xcb_window_t window, xcb_atom_t message, const xcb_client_message_data_t &data);
    void watchRoot(bool isToWatch);
    void look();
    bool hasActiveWindowChanged();
    bool isActive() const;
    bool hasClosed(xcb_window_t window) const;
    bool isModalChild(xcb_window_t window) const;
    bool isModal(xcb_window_t window) const;
    bool isOfGroup(xcb_window_t window) const;
    std::optional<xcb_window_t> groupLeader(xcb_window_t window) const;
    void finish(bool isActive);

    WindowServer server_;
    bool isExpected_ = false;
    bool isWatching_ = false; ///< the root's properties
    int timesToAskAgain_ = 0;
    xcb_timestamp_t lastChange_ = XCB_CURRENT_TIME; ///< of the active window
    xcb_window_t window_ = XCB_WINDOW_NONE; ///< the one that is turned to; none at rest
    QSocketNotifier input_;
    QTimer limit_;
    QTimer calm_; ///< runs while the root is watched without need
};
