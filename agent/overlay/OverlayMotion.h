#pragma once

#include <QRect>

/// The frame on its way from one window to the next.
struct OverlayMotion
{
    static constexpr int duration = 120; ///< milliseconds
    static constexpr int mostSteps = 8;

    QRect from, to;

    /// Where it is that many milliseconds after its start: fast at first.
    QRect rectAt(qint64 elapsed) const;
    /// Milliseconds from one step to the next, on a monitor that refreshes that often in a second.
    static int stepInterval(double refreshRate);
};
