#include "agent/actions/x11/PreviewWindow.h"

#include "agent/actions/PreviewLayout.h"
#include "agent/actions/x11/WindowForShow.h"

namespace {

constexpr quint32 lineColor = 0x808080;
constexpr quint16 lineWidth = 2;

} // namespace

PreviewWindow::PreviewWindow(const WindowDescription &window, const Monitor &monitor)
    : source_(window, monitor.refreshRate), monitor_(monitor)
{
    if (!source_.isThere() || !canLetClicksThrough(source_.connection()) || !fit())
        return;
    connect(&source_, &LivePicture::changed, this, &PreviewWindow::draw);
    connect(&source_, &LivePicture::ended, this, &PreviewWindow::ended);
    connect(&source_, &LivePicture::resized, this, [this] {
        if (!fit())
            Q_EMIT ended();
    });
    source_.begin();
}

/// Takes the window's pixels in the size that they have now; false where it is not on screen any more.
bool PreviewWindow::fit()
{
    const auto frame = source_.take();
    if (!frame)
        return false;
    const QRect rect = previewRect(frame->size(), monitor_.rect);
    source_.scale(*frame, rect.size());
    place(rect);
    draw();
    return true;
}

/// In one go with its first picture.
void PreviewWindow::place(const QRect &rect)
{
    const quint32 values[]{quint32(rect.x() - lineWidth), quint32(rect.y() - lineWidth), quint32(rect.width()),
        quint32(rect.height()), XCB_STACK_MODE_ABOVE};
    xcb_connection_t *const server = source_.connection().server();
    if (picture_ == 0)
        make(rect);
    xcb_configure_window(server, shown_,
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
            | XCB_CONFIG_WINDOW_STACK_MODE,
        values);
    xcb_map_window(server, shown_);
    size_ = rect.size();
}

void PreviewWindow::make(const QRect &rect)
{
    xcb_connection_t *const server = source_.connection().server();
    shown_ = makeWindowForShow(source_.connection(), rect, lineWidth);
    const quint32 values[]{lineColor, XCB_EVENT_MASK_EXPOSURE};
    xcb_change_window_attributes(server, shown_, XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK, values);
    picture_ = xcb_generate_id(server);
    xcb_render_create_picture(server, picture_, shown_, source_.screenFormat(), 0, nullptr);
}

void PreviewWindow::draw()
{
    source_.draw(picture_, {}, size_);
    source_.connection().flush();
}
