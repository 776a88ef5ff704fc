#include "agent/overlay/x11/XOverlay.h"

XOverlay::XOverlay(std::unique_ptr<MarkDisplay> display)
    : display_(std::move(display)), frame_(*display_), texts_(*display_)
{
    frame_.setColors(colors_);
    display_->flush();
    motionSteps_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&motionSteps_, &QTimer::timeout, &motionSteps_, [this] { takeStep(); });
    textsLater_.setSingleShot(true);
    QObject::connect(&textsLater_, &QTimer::timeout, &textsLater_, [this] { showTexts(); });
}

void XOverlay::showOverlay(const OverlayView &view)
{
    if (display_->isLost())
        return;
    isComposited_ = display_->isComposited();
    endMotion();
    useColors();
    if (!view.marksSameAs(view_))
        hideBelow();
    view_ = view;
    showFrame();
    texts_.hideOutdated(view);
    display_->flush();
    if (!motionSteps_.isActive())
        textsLater_.start();
}

void XOverlay::hideOverlay()
{
    motionSteps_.stop();
    textsLater_.stop();
    hideBelow();
    frame_.hide();
    texts_.hide();
    display_->flush();
}

void XOverlay::useColors()
{
    const OverlayColors colors = overlayColors(style_.color);
    if (colors == colors_)
        return;
    colors_ = colors;
    frame_.setColors(colors);
}

void XOverlay::showFrame()
{
    if (view_.windowRect.isEmpty())
        frame_.hide();
    else if (movesTo(view_.windowRect))
        startMotion(view_.windowRect);
    else
        placeFrame(view_.windowRect, Resizing::OffScreen);
}

void XOverlay::placeFrame(const QRect &rect, Resizing resizing)
{
    frame_.show(rect, view_.monitor.scale, isComposited_, resizing);
}

/// Without a compositor another size means that the frame goes off the screen for a moment, which would be seen at each
/// step.
bool XOverlay::movesTo(const QRect &rect) const
{
    return style_.animates && frame_.isShown() && frame_.rect() != rect
        && (isComposited_ || frame_.rect().size() == rect.size());
}

void XOverlay::startMotion(const QRect &to)
{
    motion_ = {frame_.rect(), to};
    step_ = 0;
    placeFrame(motion_.from, Resizing::OnScreen);
    motionTime_.start();
    motionSteps_.start(OverlayMotion::stepInterval(view_.monitor.refreshRate));
}

void XOverlay::takeStep()
{
    const bool isLast = ++step_ == OverlayMotion::mostSteps || motionTime_.hasExpired(OverlayMotion::duration);
    if (isLast)
        motionSteps_.stop();
    placeFrame(isLast ? motion_.to : motion_.rectAt(motionTime_.elapsed()), Resizing::OnScreen);
    display_->flush();
    if (isLast)
        textsLater_.start();
}

void XOverlay::showTexts()
{
    texts_.show(view_, colors_);
    placeBelow();
    display_->flush();
}

/// Digits that are on screen already are raised above the mark with its texts, and only then nothing hides them.
void XOverlay::showBelow(quint32 windowID)
{
    below_ = windowID;
    if (motionSteps_.isActive() || textsLater_.isActive())
        return;
    placeBelow();
    display_->flush();
}

void XOverlay::placeBelow()
{
    if (below_ == 0 || !frame_.isShown())
        return;
    const quint32 values[]{frame_.lowestWindow(), XCB_STACK_MODE_BELOW};
    xcb_configure_window(display_->server(), below_, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values);
    xcb_map_window(display_->server(), below_);
}

void XOverlay::hideBelow()
{
    if (below_ != 0)
        xcb_unmap_window(display_->server(), below_);
    below_ = 0;
}

/// What is shown next begins where this one would have ended.
void XOverlay::endMotion()
{
    if (!motionSteps_.isActive())
        return;
    motionSteps_.stop();
    placeFrame(motion_.to, Resizing::OnScreen);
}
