#pragma once

#include "tutorial/Steps.h"

#include <QRect>
#include <array>

/// Where everything stands on a screen: the guide above, the windows to practise with below it. Sizes are without the
/// window manager's frames.
struct StageLayout
{
    QPoint guide; ///< its upper left corner
    std::array<QRect, shapeCount> windows; ///< by shape
};

/// Within what panels leave of the screen, on which a length of 1 is `scale` pixels.
StageLayout stageLayout(const QRect &available, QSize guide, double scale);
