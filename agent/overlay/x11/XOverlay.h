#pragma once

#include "agent/overlay/Overlay.h"
#include "agent/overlay/OverlayMotion.h"
#include "agent/overlay/x11/FrameWindow.h"
#include "agent/overlay/x11/OverlayTexts.h"

#include <QElapsedTimer>
#include <QTimer>

/// The mark on an X server.
class XOverlay : public LayeredOverlay
{
public:
    explicit XOverlay(std::unique_ptr<MarkDisplay> display);

    void setStyle(const OverlayStyle &style) override { style_ = style; }
    void showOverlay(const OverlayView &view) override;
    void hideOverlay() override;
    void showBelow(quint32 windowID) override;
    bool isLost() override { return display_->hasGone(); }

private:
    void useColors();
    void showFrame();
    void placeFrame(const QRect &rect, Resizing resizing);
    bool movesTo(const QRect &rect) const;
    void startMotion(const QRect &to);
    void takeStep();
    void endMotion();
    void showTexts();
    void placeBelow();
    void hideBelow();

    const std::unique_ptr<MarkDisplay> display_;
    FrameWindow frame_;
    OverlayTexts texts_;
    OverlayStyle style_;
    OverlayColors colors_; ///< that the windows have
    OverlayView view_;
    quint32 below_ = 0; ///< the window that is to be shown below the mark
    bool isComposited_ = false;
    OverlayMotion motion_;
    QElapsedTimer motionTime_;
    QTimer motionSteps_; ///< runs during a motion only
    int step_ = 0;
    QTimer textsLater_; ///< texts take their time, which the frame does not wait for
};
