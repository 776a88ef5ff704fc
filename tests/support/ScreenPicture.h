#pragma once

#include "platform/foundation/system/X11.h"

#include <QImage>
#include <functional>

/// What is on the session's screen now, by the X server's word; windows of all programs included.
QImage screenPicture();

/// The same after a moment: waits until every pixel is within `tolerance` of what `expected` gives for its place, part
/// by part; false, with a word on one that is not, when that does not come about.
bool showsOnScreen(const std::function<QRgb(QPoint)> &expected, int tolerance = 0);

/// A plain colour over the whole screen, above what is there when it is made. Hears of its clicks.
class ScreenGround
{
public:
    explicit ScreenGround(QRgb color);

    quint32 id() const { return id_; }
    /// How many presses of the mouse's buttons have come to it.
    int clicks();

private:
    XConnection connection_;
    quint32 id_ = 0;
    int clicks_ = 0;
};
