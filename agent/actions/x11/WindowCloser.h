#pragma once

#include "agent/actions/x11/ActionConnection.h"

/// Has a window closed, by its manager or by force, and tells when windows come and go.
class WindowCloser : public QObject
{
    Q_OBJECT

public:
    WindowCloser();

    bool isLost() const { return connection_.isLost(); }
    /// Whether the window's program has said that it can be asked to close it.
    bool canBeAsked(quint32 window) const;
    /// As its frame's button does; from now on windowsDidChange() is told. A time of 0 is the server's own now.
    void ask(quint32 window, quint32 time);
    /// Whether one belongs to the other, as a dialog does.
    bool belongsTo(quint32 window, quint32 other) const;

    /// Ends the program that a window belongs to, as far as the server can.
    static void endProgramOf(quint32 window);

Q_SIGNALS:
    /// The manager tells other windows than before.
    void windowsDidChange();

private:
    void handleEvent(const xcb_generic_event_t &event);

    ActionConnection connection_;
    xcb_atom_t clientList_ = XCB_ATOM_NONE;
};
