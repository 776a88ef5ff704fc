// The enlarged picture of a window, on screen.

#include "LivingWindow.h"
#include "ScreenPicture.h"
#include "WindowsOnDesktop.h"
#include "agent/actions/PreviewLayout.h"
#include "agent/actions/x11/PreviewWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <xcb/res.h>

namespace {

const QRect somewhere(60, 50, 200, 150);
constexpr QRgb red = 0xffc02020, green = 0xff20c020;

Monitor monitor()
{
    return {QGuiApplication::primaryScreen()->geometry(), 1, 60};
}

/// Clients of the server, and the bytes of all their pixmaps.
std::pair<quint32, quint64> kept()
{
    const XConnection connection = connectToXServer();
    xcb_connection_t *const server = connection.get();
    const auto clients = fromServer(xcb_res_query_clients_reply(server, xcb_res_query_clients(server), nullptr));
    quint64 bytes = 0;
    for (auto client = xcb_res_query_clients_clients_iterator(clients.get()); client.rem > 0;
         xcb_res_client_next(&client)) {
        const auto asked = xcb_res_query_client_pixmap_bytes(server, client.data->resource_base);
        const auto reply = fromServer(xcb_res_query_client_pixmap_bytes_reply(server, asked, nullptr));
        bytes += reply ? reply->bytes : 0;
    }
    return {clients->num_clients, bytes};
}

class PreviewOnDesktop : public WindowsOnDesktop
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(window.show());
        window.draw(red);
    }
    void show()
    {
        preview.emplace(described(window.id()), monitor());
        QObject::connect(&*preview, &PreviewWindow::ended, [this] { hasEnded = true; });
        ASSERT_TRUE(preview->isShown());
    }
    /// The whole picture has one colour.
    static bool shows(const QRect &rect, QRgb color)
    {
        const QImage part = screenPicture().copy(rect);
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x) {
                if (part.pixel(x, y) != color)
                    return false;
            }
        }
        return true;
    }
    static QRect place(QSize size = somewhere.size()) { return previewRect(size, monitor().rect); }

    LivingWindow window{"Small", somewhere};
    std::optional<PreviewWindow> preview;
    bool hasEnded = false;
};

} // namespace

TEST_F(PreviewOnDesktop, isTheWholeWindowEnlarged)
{
    window.draw();
    ASSERT_EQ(place().size(), somewhere.size() * 4);
    show();
    EXPECT_TRUE(waitUntil([] {
        const QImage screen = screenPicture();
        for (const QPoint &of : {QPoint(0, 0), QPoint(199, 149), QPoint(70, 30), QPoint(10, 140)}) {
            const QRgb seen = screen.pixel(place().topLeft() + of * 4 + QPoint(2, 2)),
                       drawn = LivingWindow::colorAt(of);
            // Between the middles of two pixels there is a little of both.
            if (std::abs(qRed(seen) - qRed(drawn)) > 2 || std::abs(qGreen(seen) - qGreen(drawn)) > 2
                || std::abs(qBlue(seen) - qBlue(drawn)) > 8)
                return false;
        }
        return true;
    }));
}

TEST_F(PreviewOnDesktop, showsACoveredWindowAndNothingOfWhatCoversIt)
{
    WindowOfAnotherProgram above("Above", somewhere.adjusted(-30, -30, 30, 30));
    above.setColor(0x4040c0);
    ASSERT_TRUE(above.show());
    show();
    EXPECT_TRUE(waitUntil([] { return shows(place(), red); }));
}

TEST_F(PreviewOnDesktop, followsWhatTheWindowDraws)
{
    show();
    ASSERT_TRUE(waitUntil([] { return shows(place(), red); }));
    window.draw(green);
    ASSERT_TRUE(waitUntil([] { return shows(place(), green); }));
    // By now the preview has drawn whatever it draws when it comes up.
    window.draw(red);
    EXPECT_TRUE(waitUntil([] { return shows(place(), red); }));
}

TEST_F(PreviewOnDesktop, followsTheWindowsSize)
{
    show();
    ASSERT_TRUE(waitUntil([] { return shows(place(), red); }));
    window.resize({150, 180});
    EXPECT_TRUE(waitUntil([] { return shows(place({150, 180}), red); }));
    EXPECT_FALSE(shows(place(), red)) << "it is as large as the window makes it";
}

TEST_F(PreviewOnDesktop, isGoneWithItsObject)
{
    show();
    ASSERT_TRUE(waitUntil([] { return shows(place(), red); }));
    preview.reset();
    EXPECT_TRUE(waitUntil([] { return !shows(place(), red); }));
}

TEST_F(PreviewOnDesktop, endsWithTheWindow)
{
    show();
    window.close();
    EXPECT_TRUE(waitUntil([this] { return hasEnded; }));
}

TEST_F(PreviewOnDesktop, endsWhereTheWindowIsMinimised)
{
    show();
    minimise(window.id());
    EXPECT_TRUE(waitUntil([this] { return hasEnded; }));
}

TEST_F(PreviewOnDesktop, isNoneOfAWindowThatIsNotOnScreen)
{
    minimise(window.id());
    ASSERT_TRUE(waitUntil([this] { return described(window.id(), {true, {}}).isMinimised; }));
    EXPECT_FALSE(PreviewWindow(described(window.id(), {true, {}}), monitor()).isShown());
}

TEST_F(PreviewOnDesktop, takesNoFocusAndIsNoWindowOfTheManagers)
{
    const QList<quint32> listed = listedWindows();
    const quint32 active = activeWindow();
    show();
    ASSERT_TRUE(waitUntil([] { return shows(place(), red); }));
    EXPECT_EQ(listedWindows(), listed);
    EXPECT_EQ(activeWindow(), active);
}

TEST_F(PreviewOnDesktop, leavesNothingInTheServer)
{
    show();
    preview.reset();
    const auto before = kept();
    for (int time = 0; time < 100; ++time) {
        show();
        runPendingEvents();
        preview.reset();
    }
    EXPECT_TRUE(waitUntil([&] { return kept() == before; }));
}
