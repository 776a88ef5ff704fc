#pragma once

#include "agent/windows/WindowWorld.h"
#include "platform/foundation/colors/NSColor.h"

#include <QList>
#include <memory>

struct OverlayStyle
{
    NSColorRef color; ///< of frame and tint
    bool animates = false;
};

/// A digit that stands on a window.
struct OverlayLabel
{
    int digit = 1; ///< 1 to 9
    QRect windowRect;
};

/// What is marked.
struct OverlayView
{
    quint32 windowID = 0;
    QRect windowRect; ///< what shows of it, within the monitors; empty where nothing does: its icon stands in the
                      ///< monitor's middle then
    QRect frameRect; ///< the same, but also beyond the monitors
    Monitor monitor; ///< the one that shows most of the window
    QString title; ///< for the strip at the frame's upper edge
    bool isCovered = false; ///< by others at its middle: its icon stands there
    bool isOverlapped = false; ///< by others anywhere
    QList<OverlayLabel> labels;

    bool marksSameAs(const OverlayView &other) const
    {
        return windowID == other.windowID && windowRect == other.windowRect;
    }
};

/// Marks the selected window on screen. Takes no key, no click and no focus.
class Overlay
{
public:
    virtual ~Overlay() = default;

    /// From the next showing on.
    virtual void setStyle(const OverlayStyle &style) = 0;
    /// Shows the mark or moves it. The frame is on its way to the screen when this returns; text and icons follow.
    virtual void showOverlay(const OverlayView &view) = 0;
    /// Nothing of it is left on screen; harmless where nothing is.
    virtual void hideOverlay() = 0;
};

/// One that other windows of this program lie below.
class LayeredOverlay : public Overlay
{
public:
    /// Whether the display has gone, or was not there: another one is to take its place.
    virtual bool isLost() = 0;
    /// Shows a window between the mark and all others, with the mark's texts or after them. In the moment in which the
    /// mark leaves this place it is on screen no more. The one before is forgotten; 0 for none any more, whatever has
    /// become of it.
    virtual void showBelow(quint32 windowID) = 0;
};

/// What draws in this session; never null. Without a display nothing is drawn.
std::unique_ptr<LayeredOverlay> overlay();
