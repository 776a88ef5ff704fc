#pragma once

#include "platform/foundation/system/X11.h"

#include <QList>
#include <QRect>

/// Hears where windows that no manager places (they lie on the root itself) are put while they are on screen, and when
/// they come onto it and go.
class WindowListener
{
public:
    WindowListener();

    /// What windows that are seen have been given since the last call, in order; twice the same place counts once.
    QList<QRect> places();
    /// How often one has come onto the screen since the last call.
    int appearances();
    /// How often one has gone off the screen since the last call.
    int disappearances();

private:
    void takeEvents();
    void take(const xcb_generic_event_t *event);

    XConnection connection_;
    QList<QRect> places_;
    int appearances_ = 0, disappearances_ = 0;
};
