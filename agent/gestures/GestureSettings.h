#pragma once

#include "agent/overlay/Overlay.h"
#include "agent/selection/Gesture.h"
#include "agent/windows/WindowSystem.h"

#include <QVariantMap>

/// What a gesture goes by, from its beginning to its end.
struct GestureSettings
{
    GestureRules gesture;
    SelectionRules selection;
    WindowChoice windows;
    OverlayStyle overlay;
    bool beeps = false; ///< where a key leads nowhere
    bool labelsAtOnce = false;
};

/// From the settings that the agent goes by.
GestureSettings gestureSettings(const QVariantMap &settings);
