#pragma once

#include "platform/appkit/Export.h"
#include "platform/foundation/NSColor.h"

#include <QPointF>
#include <QRectF>

class QColorDialog;
class QWidget;

/// A window's frame in screen coordinates with y upward, origin at the lower left of the primary screen.
LM_APPKIT QRectF windowFrame(const QWidget *window);

/// The one colour panel of the process: not modal, with alpha.
class LM_APPKIT NSColorPanel
{
public:
    static NSColorPanel *sharedColorPanel();

    /// Its frame, with y upward, also while it is not visible.
    QRectF frame() const;
    /// Moves the panel's lower left corner without changing its size, visible or not. Does nothing where windows cannot
    /// be placed (no X display).
    void setFrameOrigin(QPointF origin);

    /// The panel's window.
    QColorDialog *window() const { return window_; }

private:
    NSColorPanel();
    ~NSColorPanel();
    QColorDialog *window_;
};
