#pragma once

#include <QString>
#include <memory>

struct xcb_connection_t;

/// A window of another program, as far as the X server and the window manager can tell: on a connection of its own,
/// past the toolkit. Gone with the object.
class ForeignWindow
{
public:
    explicit ForeignWindow(const QString &title);

    quint32 id() const { return id_; }
    /// Has its user turn to it, and waits until it has the focus; false when that does not come about.
    bool takesFocus() const;

private:
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> connection_;
    quint32 id_ = 0;
};
