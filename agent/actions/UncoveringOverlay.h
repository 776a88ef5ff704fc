#pragma once

#include "agent/overlay/Overlay.h"

#include <QTimer>

class PictureInPlace;

/// Marks as another overlay does. Where other windows cover the selected one, its picture stands at its place, below
/// the mark and with what it draws meanwhile, as long as it is selected. The mark does not wait for that.
class UncoveringOverlay : public Overlay
{
public:
    explicit UncoveringOverlay(std::unique_ptr<LayeredOverlay> overlay);
    ~UncoveringOverlay() override;

    void setStyle(const OverlayStyle &style) override { overlay_->setStyle(style); }
    void showOverlay(const OverlayView &view) override;
    void hideOverlay() override;

    /// Marks on the display that there is now, where the one before has gone. Not to be called while a window is
    /// marked.
    void open();

    /// Shows no pictures, since a larger one is shown elsewhere.
    void pause();
    void goOn();

private:
    void followView();
    void takePicture();
    void dropPicture();

    std::unique_ptr<LayeredOverlay> overlay_;
    OverlayView view_; ///< empty where nothing is marked
    bool isPaused_ = false;
    QTimer soon_, gone_;
    std::unique_ptr<PictureInPlace> picture_;
};
