#pragma once

#include "agent/actions/WindowPixels.h"
#include "agent/actions/x11/RedirectedWindow.h"

#include <QTimer>

/// Copies a window's pixels, covered or not, without holding up the event loop: where nobody has kept what is covered,
/// the window's program draws it first.
class PixelCopy : public QObject
{
    Q_OBJECT

public:
    /// copied() or failed() follows, never within this call.
    explicit PixelCopy(const WindowDescription &window);

    /// After copied().
    WindowPixels takePixels() { return std::move(pixels_); }

Q_SIGNALS:
    /// The window's program has had its time to draw; the rest takes no longer than it must.
    void drawn();
    void copied();
    void failed(PictureFailure failure);

private:
    void begin();
    void handleEvent(const xcb_generic_event_t &event);
    void copy();
    bool describePixels(const WindowPixmap &pixmap);
    bool makeMemory();
    bool shareMemory();
    void copyAtOnce();
    void copyNextRows();
    void takeRows(void *answer);
    void fail(PictureFailure failure) { Q_EMIT failed(failure); }

    ActionConnection connection_;
    RedirectedWindow window_;
    QTimer quiet_; ///< runs out where nothing more is drawn
    QTimer limit_;
    WindowPixmap pixmap_;
    WindowPixels pixels_;
    quint32 segment_ = 0; ///< the memory, as the server knows it
    int nextRow_ = 0;
};
