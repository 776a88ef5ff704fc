#include "agent/overlay/x11/PictureWindow.h"

#include <algorithm>

namespace {

constexpr quint32 mostBytesInARequest = 1 << 17; // every server takes twice that

bool isOpaque(quint32 pixel)
{
    return pixel >> 24 != 0;
}

/// Rows that are alike make one rectangle.
void add(QList<QRect> &region, const QRect &row)
{
    if (!region.isEmpty() && region.last().left() == row.left() && region.last().right() == row.right()
        && region.last().bottom() + 1 == row.top())
        region.last().setBottom(row.bottom());
    else
        region += row;
}

/// Each row's pixels are opaque from the first to the last that is.
QList<QRect> opaqueRegion(const OverlayPicture &picture)
{
    QList<QRect> region;
    for (int y = 0; y < picture.size.height(); ++y) {
        const auto row = picture.pixels.cbegin() + std::ptrdiff_t(y) * picture.size.width();
        const auto end = row + picture.size.width();
        const auto first = std::find_if(row, end, isOpaque);
        const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(row), isOpaque).base();
        if (first < last)
            add(region, QRect(int(first - row), y, int(last - first), 1));
    }
    return region;
}

/// A pixmap with a picture, for as long as it has not been handed over.
class PicturePixmap
{
public:
    PicturePixmap(const MarkDisplay &display, const OverlayPicture &picture)
        : display_(display), id_(xcb_generate_id(display.server())), context_(xcb_generate_id(display.server()))
    {
        xcb_create_pixmap(display.server(), display.depth(), id_, display.root(), quint16(picture.size.width()),
            quint16(picture.size.height()));
        xcb_create_gc(display.server(), context_, id_, 0, nullptr);
        const int rowBytes = int(display.imageRow(nullptr, picture.size.width()).size());
        const int step = std::max(1, int(mostBytesInARequest) / std::max(1, rowBytes));
        for (int y = 0; y < picture.size.height(); y += step)
            put(picture, y, std::min(step, picture.size.height() - y));
    }
    ~PicturePixmap()
    {
        xcb_free_gc(display_.server(), context_);
        xcb_free_pixmap(display_.server(), id_);
    }
    PicturePixmap(const PicturePixmap &) = delete;
    PicturePixmap &operator=(const PicturePixmap &) = delete;

    xcb_pixmap_t id() const { return id_; }

private:
    void put(const OverlayPicture &picture, int top, int rows)
    {
        QByteArray bytes;
        for (int y = top; y < top + rows; ++y)
            bytes += display_.imageRow(&picture.pixels[size_t(y) * size_t(picture.size.width())], picture.size.width());
        xcb_put_image(display_.server(), XCB_IMAGE_FORMAT_Z_PIXMAP, id_, context_, quint16(picture.size.width()),
            quint16(rows), 0, qint16(top), 0, display_.depth(), quint32(bytes.size()),
            reinterpret_cast<const quint8 *>(bytes.constData()));
    }

    const MarkDisplay &display_;
    const xcb_pixmap_t id_;
    const xcb_gcontext_t context_;
};

} // namespace

void PictureWindow::setPicture(const OverlayPicture &picture)
{
    size_ = picture.isEmpty() ? QSize() : picture.size;
    if (picture.isEmpty())
        return;
    region_ = opaqueRegion(picture);
    window_.setBackground(PicturePixmap(display_, picture).id());
}

void PictureWindow::show(const QPoint &corner)
{
    if (size_.isEmpty())
        return window_.hide();
    QList<QRect> region;
    for (const QRect &rect : region_)
        region += rect.translated(corner);
    window_.show({corner, size_}, region);
}
