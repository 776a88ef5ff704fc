#pragma once

#include "ExpectedFrame.h"
#include "ScreenPicture.h"
#include "Wait.h"
#include "agent/overlay/Overlay.h"

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

constexpr QRgb lightGround = 0xfff4f4f4, darkGround = 0xff101418;
constexpr QRgb blue = 0xff2060c0, yellow = 0xffffe040, black = 0xff000000, white = 0xffffffff;

inline NSColorRef colorOf(QRgb color, double alpha = 1)
{
    return NSColor::colorWithDeviceRGBA(
        float(qRed(color)) / 255, float(qGreen(color)) / 255, float(qBlue(color)) / 255, float(alpha));
}

/// A window without title and icon: nothing but the frame is drawn.
inline OverlayView viewOf(const QRect &rect, double scale = 1)
{
    OverlayView view;
    view.windowRect = rect;
    view.monitor = {QGuiApplication::primaryScreen()->geometry(), scale, 60};
    return view;
}

/// The mark over a plain ground.
class MarkOnGround
{
public:
    explicit MarkOnGround(QRgb ground) : ground_(ground) { useColor(blue); }

    void useColor(QRgb color, double alpha = 1, bool animates = false)
    {
        overlay_->setStyle({colorOf(color, alpha), animates});
    }
    void mark(const QRect &rect, double scale = 1) { show(viewOf(rect, scale)); }
    void show(const OverlayView &view) { overlay_->showOverlay(view); }
    void hide() { overlay_->hideOverlay(); }

protected:
    ScreenGround ground_;
    std::unique_ptr<Overlay> overlay_ = overlay();
};

/// On both grounds.
class Mark : public MarkOnGround, public testing::TestWithParam<QRgb>
{
protected:
    Mark() : MarkOnGround(GetParam()) { }

    /// In blue, without a compositor: nothing is seen through.
    ExpectedFrame expected(const QRect &rect) const { return {rect, GetParam(), blue, white}; }
    static QRgb ground(QPoint) { return GetParam(); }
};
