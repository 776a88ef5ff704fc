#pragma once

#include "agent/windows/x11/PropertyDecoding.h"

#include <QRect>

/// What a window and its manager say of it.
struct WindowFacts
{
    xcb_window_t windowID = XCB_WINDOW_NONE;
    QRect content; ///< on the root
    std::optional<QMargins> frame; ///< what its manager has put around the content
    std::optional<QMargins> shadow; ///< what of the content is but a shadow that its program draws
    std::optional<QRect> holder; ///< the child of the root that holds it; asked where the margins do not tell enough
    QList<quint32> types; ///< the one that fits best first
    QList<quint32> states;
    std::optional<quint32> desktop;
    bool isTransient = false; ///< belongs to another window
    qint64 processID = 0;
    ProgramClass program;
    QString title;
};
