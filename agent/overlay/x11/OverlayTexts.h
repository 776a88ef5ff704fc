#pragma once

#include "agent/overlay/Overlay.h"
#include "agent/overlay/OverlayColors.h"
#include "agent/overlay/x11/PictureWindow.h"

#include <array>
#include <memory>
#include <vector>

/// What is told beside the frame: the strip with icon and title, the icon of what is hardly seen, the digits.
class OverlayTexts
{
public:
    explicit OverlayTexts(const MarkDisplay &display);

    /// Draws what is not drawn yet and shows it; needs the frame on screen, since it takes its time.
    void show(const OverlayView &view, const OverlayColors &colors);
    /// Takes off the screen what would tell something wrong about the next showing.
    void hideOutdated(const OverlayView &next);
    void hide();

private:
    void showStrip(const OverlayPictures &pictures, const OverlayView &view, const OverlayPicture &icon);
    void showIcon(const OverlayPictures &pictures, const OverlayView &view, const OverlayPicture &icon);
    void showLabels(const OverlayPictures &pictures, const OverlayView &view);
    void useInk(const OverlayInk &ink);

    static constexpr size_t mostDigits = 9;

    const MarkDisplay &display_;
    PictureWindow strip_, icon_;
    std::vector<std::unique_ptr<PictureWindow>> digits_; ///< from 1 on; each keeps its picture
    OverlayInk ink_;
    quint32 windowID_ = 0; ///< that strip and icon tell about
    QString title_;
    QRect windowRect_;
};
