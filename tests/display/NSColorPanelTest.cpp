#include "platform/appkit/colors/NSColorPanel.h"
#include "Wait.h"
#include "platform/appkit/colors/NSColorWell.h"

#include <QColorDialog>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <xcb/xcb.h>

namespace {

/// Where the X server says that a window's frame is, in pixels with y upward; past everything that the toolkit
/// believes.
QRect realFrame(const QWidget *widget)
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const auto geometryOf = [connection](xcb_window_t window) {
        const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> reply(
            xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr), &std::free);
        const int border = reply->border_width;
        return QRect(reply->x, reply->y, reply->width + 2 * border, reply->height + 2 * border);
    };
    xcb_window_t window = xcb_window_t(widget->window()->winId());
    xcb_window_t root = 0;
    for (;;) {
        const std::unique_ptr<xcb_query_tree_reply_t, decltype(&std::free)> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr), &std::free);
        root = tree->root;
        if (tree->parent == tree->root)
            break;
        window = tree->parent;
    }
    const QRect frame = geometryOf(window);
    const int screenHeight = geometryOf(root).height();
    xcb_disconnect(connection);
    return {frame.x(), screenHeight - frame.y() - frame.height(), frame.width(), frame.height()};
}

} // namespace

class TheColorPanel : public testing::Test
{
protected:
    TheColorPanel()
    {
        host.setGeometry(200, 200, 400, 300);
        host.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&host));
        EXPECT_TRUE(waitUntil([this] { return host.windowHandle()->frameMargins().top() > 0; }));
    }
    ~TheColorPanel() override { panel->window()->close(); }

    void show()
    {
        panel->window()->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(panel->window()));
    }

    /// Whether the panel comes to know its frame: the server's answer to an earlier move may still be on its way.
    bool hears(const QRectF &frame)
    {
        return waitUntil([&] { return panel->frame() == frame; });
    }

    QWidget host;
    NSColorPanel *panel = NSColorPanel::sharedColorPanel();
};

TEST_F(TheColorPanel, placedBeforeItsFirstShowingStandsThereToThePixelWhenItIsShown)
{
    const QSizeF size = panel->frame().size();
    panel->setFrameOrigin({321, 123});
    EXPECT_EQ(panel->frame(), QRectF(QPointF(321, 123), size));
    EXPECT_FALSE(panel->window()->isVisible());
    show();
    EXPECT_TRUE(waitUntil([&] {
        return realFrame(panel->window()) == QRect(321, 123, int(size.width()), int(size.height()));
    })) << realFrame(panel->window()).x()
        << ' ' << realFrame(panel->window()).y();
    EXPECT_TRUE(hears(QRectF(QPointF(321, 123), size)));
}

TEST_F(TheColorPanel, placedWhileItIsShownMovesThereToThePixelAndKeepsItsSize)
{
    show();
    const QSize size = realFrame(panel->window()).size();
    for (const QPoint place : {QPoint(50, 60), QPoint(400, 300), QPoint(0, 0)}) {
        panel->setFrameOrigin(place);
        EXPECT_TRUE(waitUntil([&] { return realFrame(panel->window()) == QRect(place, size); }))
            << realFrame(panel->window()).x() << ' ' << realFrame(panel->window()).y();
        EXPECT_TRUE(hears(QRectF(place, size)));
    }
}

TEST_F(TheColorPanel, placedWhileItIsClosedStandsThereWhenItIsShownAgain)
{
    show();
    const QSize size = realFrame(panel->window()).size();
    panel->window()->close();
    panel->setFrameOrigin({77, 88});
    EXPECT_EQ(panel->frame(), QRectF(QPointF(77, 88), size));
    show();
    EXPECT_TRUE(waitUntil([&] { return realFrame(panel->window()) == QRect(QPoint(77, 88), size); }))
        << realFrame(panel->window()).x() << ' ' << realFrame(panel->window()).y();
}

TEST_F(TheColorPanel, theFrameOfAWindowIsWhatTheWindowManagerDrawsAroundIt)
{
    EXPECT_TRUE(waitUntil([&] { return windowFrame(&host) == QRectF(realFrame(&host)); }));
    QWidget child(&host);
    EXPECT_EQ(windowFrame(&child), windowFrame(&host));
    EXPECT_GT(windowFrame(&host).height(), host.height());
    EXPECT_TRUE(windowFrame(nullptr).isEmpty());
}

TEST_F(TheColorPanel, standsBesideAWindowCentredOnIt)
{
    const QRectF beside = windowFrame(&host);
    const QRectF own = panel->frame();
    panel->setFrameOrigin(
        {beside.x() + beside.width() + 10, beside.y() + std::floor((beside.height() - own.height()) / 2)});
    show();
    EXPECT_TRUE(waitUntil([&] { return realFrame(panel->window()).x() == realFrame(&host).right() + 11; }));
    const QRect shown = realFrame(panel->window());
    EXPECT_NEAR(shown.center().y(), realFrame(&host).center().y(), 1);
}

TEST_F(TheColorPanel, openedFromAWellComesWhollyIntoSightWithTheIconOfTheWindow)
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    host.setWindowIcon(QIcon(red));
    NSColorWell well(&host);
    panel->setFrameOrigin({5000, -700});
    panel->orderFrontForWell(&well);
    const QRect screen(QPoint(), host.screen()->size());
    EXPECT_TRUE(waitUntil([&] { return screen.contains(realFrame(panel->window())); }));
    EXPECT_EQ(panel->window()->windowIcon().cacheKey(), host.windowIcon().cacheKey());
}

TEST_F(TheColorPanel, letsTheHostWorkOnWhileItIsOpen)
{
    show();
    EXPECT_FALSE(panel->window()->isModal());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(panel->window()->testOption(QColorDialog::ShowAlphaChannel));
    EXPECT_TRUE(panel->window()->testOption(QColorDialog::NoButtons));
}
