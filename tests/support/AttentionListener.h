#pragma once

#include <QtGlobal>
#include <memory>

struct xcb_connection_t;

/// Hears what a window's own program asks the window manager for, as long as it lives.
class AttentionListener
{
public:
    explicit AttentionListener(quint32 window);

    /// Whether the user's attention has been asked for.
    bool hasBeenAskedFor() const;

private:
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> connection_;
    quint32 window_;
    mutable bool hasBeenAskedFor_ = false;
};
