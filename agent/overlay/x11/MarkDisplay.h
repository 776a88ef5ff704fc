#pragma once

#include "platform/foundation/system/X11.h"

#include <QByteArray>
#include <QString>
#include <memory>
#include <utility>

/// The properties' names, as the X server knows them.
struct MarkAtoms
{
    xcb_atom_t windowType = 0, notification = 0, opacity = 0, shadow = 0, icon = 0, compositor = 0;
};

/// The connection that the mark is drawn on, and whether a compositor draws the screen. It selects nothing but the
/// coming and going of compositors, so nobody is woken by it; what has come in is read at a showing.
class MarkDisplay
{
public:
    /// Null, with the reason, where no mark can be drawn that lets clicks through. Without an X server there is none to
    /// give: that is the hot keys' to tell.
    static std::unique_ptr<MarkDisplay> open(QString *failure);

    xcb_connection_t *server() const { return connection_.get(); }
    bool isLost() const { return xcb_connection_has_error(connection_.get()) != 0; }
    /// The same, where nothing may have come in or gone out for long.
    bool hasGone();
    void flush() const { xcb_flush(connection_.get()); }

    xcb_window_t root() const { return screen_->root; }
    xcb_visualid_t visual() const { return visual_; }
    quint8 depth() const { return depth_; }
    xcb_colormap_t colormap() const { return colormap_; }
    const MarkAtoms &atoms() const { return atoms_; }

    /// Of 0xRRGGBB.
    quint32 pixel(quint32 color) const;
    /// A row of pixels, each 0xRRGGBB, as the server takes them in an image; without any, one that is as long.
    QByteArray imageRow(const quint32 *colors, int count) const;

    /// As far as the events go that have come in by now.
    bool isComposited();

private:
    explicit MarkDisplay(XConnection connection) : connection_(std::move(connection)) { }
    bool start();
    void findScreen();
    bool findVisual();
    bool takeVisual(quint8 depth);
    bool findFormat();
    void internAtoms();
    bool letsClicksThrough();
    void followCompositor();

    XConnection connection_;
    int screenNumber_ = 0;
    const xcb_screen_t *screen_ = nullptr;
    xcb_visualid_t visual_ = 0;
    quint32 masks_[3]{}; ///< of red, green and blue in a pixel
    quint8 depth_ = 0;
    int pixelBytes_ = 0, rowMultiple_ = 0; ///< in an image
    xcb_colormap_t colormap_ = 0;
    MarkAtoms atoms_;
    quint8 compositorEvent_ = 0;
    bool isComposited_ = false;
};
