#include "agent/actions/x11/PictureInPlace.h"

#include "agent/actions/x11/WindowForShow.h"

PictureInPlace::PictureInPlace(const WindowDescription &window, double refreshRate)
    : source_(window, refreshRate), rect_(window.windowRect),
      corner_(window.windowRect.topLeft() - window.frameRect.topLeft())
{
    if (!source_.isThere() || !canLetClicksThrough(source_.connection()))
        return;
    make();
    if (!fit())
        return;
    connect(&source_, &LivePicture::changed, this, &PictureInPlace::draw);
    connect(&source_, &LivePicture::ended, this, &PictureInPlace::ended);
    connect(&source_, &LivePicture::resized, this, [this] {
        if (!fit())
            Q_EMIT ended();
    });
    source_.begin();
    tellOnceDrawn();
}

/// The picture is the window's ground: the server shows it by itself wherever something above it goes.
void PictureInPlace::make()
{
    const ActionConnection &connection = source_.connection();
    xcb_connection_t *const server = connection.server();
    shown_ = makeWindowForShow(connection, rect_, 0);
    const xcb_pixmap_t ground = xcb_generate_id(server);
    xcb_create_pixmap(server, connection.screen()->root_depth, ground, connection.root(), quint16(rect_.width()),
        quint16(rect_.height()));
    picture_ = xcb_generate_id(server);
    xcb_render_create_picture(server, picture_, ground, source_.screenFormat(), 0, nullptr);
    xcb_change_window_attributes(server, shown_, XCB_CW_BACK_PIXMAP, &ground);
    xcb_free_pixmap(server, ground);
}

/// Takes the window's pixels in the size that they have now; false where it is not on screen any more.
bool PictureInPlace::fit()
{
    const auto frame = source_.take();
    if (!frame)
        return false;
    from_ = frame->topLeft() + corner_;
    draw();
    return true;
}

void PictureInPlace::draw()
{
    const ActionConnection &connection = source_.connection();
    source_.draw(picture_, from_, rect_.size());
    xcb_clear_area(connection.server(), false, shown_, 0, 0, 0, 0);
    connection.flush();
}

void PictureInPlace::tellOnceDrawn()
{
    xcb_connection_t *const server = source_.connection().server();
    const auto asked = xcb_get_input_focus(server);
    source_.connection().expect(asked.sequence, [this](void *answer) {
        if (fromServer(static_cast<xcb_get_input_focus_reply_t *>(answer)))
            Q_EMIT drawn();
    });
}
