#pragma once

#include "agent/overlay/OverlayPictures.h"
#include "agent/overlay/x11/MarkWindow.h"

/// A window that shows a picture. The X server keeps it and draws it by itself.
class PictureWindow
{
public:
    explicit PictureWindow(const MarkDisplay &display) : display_(display), window_(display) { }

    bool isShown() const { return window_.isShown(); }
    const QRect &rect() const { return window_.rect(); }
    QSize size() const { return size_; }

    /// Counts from the next showing on.
    void setPicture(const OverlayPicture &picture);
    /// Above all others. An empty picture is not shown.
    void show(const QPoint &corner);
    void hide() { window_.hide(); }

private:
    const MarkDisplay &display_;
    MarkWindow window_;
    QSize size_;
    QList<QRect> region_; ///< what belongs to the picture
};
