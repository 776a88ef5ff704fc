#pragma once

#include "agent/windows/WindowWorld.h"

#include <QObject>
#include <memory>

/// The live enlarged picture of one window, above all others. It takes no key, no click and no focus. What the window
/// draws is shown by the monitor's next frame; while it draws nothing, nobody is woken. Gone with the object.
class Preview : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    /// The window has gone from the screen, or the display has.
    void ended();
};

/// Shows a window on its monitor; null where it is not on screen, or where there can be no previews. Waits for the
/// display.
std::unique_ptr<Preview> showPreview(const WindowDescription &window, const Monitor &monitor);
