#include "agent/actions/UncoveringOverlay.h"

#include "agent/actions/x11/PictureInPlace.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

/// Who walks on or lets go before that has seen where the mark is, and no window has drawn itself for nothing.
constexpr auto glance = 40ms;

WindowDescription windowOf(const OverlayView &view)
{
    WindowDescription window;
    window.windowID = view.windowID;
    window.windowRect = view.windowRect;
    window.frameRect = view.frameRect;
    return window;
}

} // namespace

UncoveringOverlay::UncoveringOverlay(std::unique_ptr<LayeredOverlay> overlay) : overlay_(std::move(overlay))
{
    soon_.setSingleShot(true);
    soon_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] { takePicture(); });
    gone_.setSingleShot(true);
    QObject::connect(&gone_, &QTimer::timeout, &gone_, [this] { dropPicture(); });
}

UncoveringOverlay::~UncoveringOverlay() = default;

void UncoveringOverlay::showOverlay(const OverlayView &view)
{
    overlay_->showOverlay(view);
    const bool isElsewhere = !view.marksSameAs(view_);
    view_ = view;
    if (isElsewhere)
        dropPicture();
    followView();
}

void UncoveringOverlay::hideOverlay()
{
    overlay_->hideOverlay();
    view_ = {};
    dropPicture();
}

void UncoveringOverlay::open()
{
    if (!overlay_->isLost())
        return;
    dropPicture();
    overlay_ = overlay();
}

void UncoveringOverlay::pause()
{
    isPaused_ = true;
    dropPicture();
}

void UncoveringOverlay::goOn()
{
    isPaused_ = false;
    followView();
}

void UncoveringOverlay::followView()
{
    if (!view_.isOverlapped)
        dropPicture();
    else if (!isPaused_ && !picture_ && !soon_.isActive())
        soon_.start(glance);
}

void UncoveringOverlay::takePicture()
{
    picture_ = std::make_unique<PictureInPlace>(windowOf(view_), view_.monitor.refreshRate);
    QObject::connect(
        picture_.get(), &PictureInPlace::drawn, &soon_, [this] { overlay_->showBelow(picture_->windowID()); });
    // Later: the picture is not to go while it tells that.
    QObject::connect(picture_.get(), &PictureInPlace::ended, &gone_, qOverload<>(&QTimer::start));
}

/// Its window's number may be another one's soon.
void UncoveringOverlay::dropPicture()
{
    soon_.stop();
    gone_.stop();
    if (picture_)
        overlay_->showBelow(0);
    picture_.reset();
}
