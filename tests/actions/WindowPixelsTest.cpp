// The pixels of a window's picture are those that its program drew, wherever it stands.

#include "Compositor.h"
#include "LivingWindow.h"
#include "SecondDisplay.h"
#include "WindowsOnDesktop.h"
#include "agent/actions/x11/PixelCopy.h"

#include <sys/mman.h>

namespace {

const QRect somewhere(120, 90, 300, 200);

/// From shared memory, as the program that stores it has it.
QImage imageOf(const WindowPixels &pixels)
{
    const auto length = size_t(pixels.rowBytes) * size_t(pixels.size.height());
    void *memory = ::mmap(nullptr, length, PROT_READ, MAP_SHARED, pixels.memory.get(), 0);
    if (memory == MAP_FAILED)
        return {};
    const auto format = pixels.alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QImage image = QImage(static_cast<const uchar *>(memory), pixels.size.width(), pixels.size.height(),
        qsizetype(pixels.rowBytes), format)
                             .copy();
    ::munmap(memory, length);
    return image;
}

/// What the window draws from a place of it on.
QImage drawn(QSize size, QPoint from = {}, quint8 depth = 24)
{
    QImage image(size, depth == 32 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            reinterpret_cast<QRgb *>(image.scanLine(y))[x] = LivingWindow::colorAt(from + QPoint(x, y), depth);
    }
    return image;
}

/// A window of no manager that has drawn itself.
class DrawnWindow
{
public:
    explicit DrawnWindow(const QImage &picture) : id_(xcb_generate_id(connection_.get())), size_(picture.size())
    {
        xcb_connection_t *const server = connection_.get();
        const quint32 isNobodysToManage = true;
        const xcb_gcontext_t context = xcb_generate_id(server);
        xcb_create_window(server, XCB_COPY_FROM_PARENT, id_, xcb_setup_roots_iterator(xcb_get_setup(server)).data->root,
            0, 0, quint16(size_.width()), quint16(size_.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
            XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &isNobodysToManage);
        xcb_map_window(server, id_);
        xcb_create_gc(server, context, id_, 0, nullptr);
        for (int y = 0; y < size_.height(); ++y)
            xcb_put_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, id_, context, quint16(size_.width()), 1, 0, qint16(y), 0,
                24, quint32(picture.bytesPerLine()), picture.constScanLine(y));
        fromServer(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
    }

    WindowDescription description() const
    {
        WindowDescription window;
        window.windowID = id_;
        window.windowRect = window.frameRect = QRect({}, size_);
        return window;
    }

private:
    const XConnection connection_ = connectToXServer();
    const quint32 id_;
    const QSize size_;
};

class WindowPixelsOnDesktop : public WindowsOnDesktop
{
protected:
    void begin(const WindowDescription &window)
    {
        copy_.emplace(window);
        QObject::connect(&*copy_, &PixelCopy::copied, [this] { isCopied_ = true; });
        QObject::connect(&*copy_, &PixelCopy::failed, [this](PictureFailure failure) { failure_ = failure; });
    }
    /// Empty where none came.
    QImage finish()
    {
        EXPECT_TRUE(waitUntil([this] { return isCopied_ || failure_; }));
        return isCopied_ ? imageOf(copy_->takePixels()) : QImage();
    }
    QImage pictureOf(const LivingWindow &window)
    {
        begin(described(window.id()));
        return finish();
    }

    std::optional<PictureFailure> failure_;

private:
    std::optional<PixelCopy> copy_;
    bool isCopied_ = false;
};

} // namespace

using WindowPixelsTest = WindowPixelsOnDesktop;

TEST_F(WindowPixelsTest, areThoseOfAWindowInPlainSight)
{
    LivingWindow window("Plain", somewhere);
    ASSERT_TRUE(window.show());
    EXPECT_EQ(pictureOf(window), drawn(somewhere.size()));
}

TEST_F(WindowPixelsTest, areThoseOfACoveredWindow)
{
    LivingWindow window("Covered", somewhere);
    ASSERT_TRUE(window.show());
    WindowOfAnotherProgram above("Above", somewhere.adjusted(-20, -60, 20, 20));
    above.setColor(0x40c040);
    ASSERT_TRUE(above.show());
    EXPECT_EQ(pictureOf(window), drawn(somewhere.size()));
}

TEST_F(WindowPixelsTest, areThoseOfAWindowThatIsPartlyOffScreen)
{
    LivingWindow window("Off", {-130, 70, 300, 200});
    ASSERT_TRUE(window.show());
    ASSERT_LT(described(window.id()).frameRect.x(), 0);
    EXPECT_EQ(pictureOf(window), drawn({300, 200}));
}

TEST_F(WindowPixelsTest, haveTheAlphaThatTheProgramDrew)
{
    LivingWindow window("Clear", somewhere, {.depth = 32});
    ASSERT_TRUE(window.show());
    EXPECT_EQ(pictureOf(window), drawn(somewhere.size(), {}, 32));
}

TEST_F(WindowPixelsTest, areWithoutTheShadowThatTheProgramDraws)
{
    LivingWindow window("Shadow", somewhere, {.shadow = 30});
    ASSERT_TRUE(window.show());
    EXPECT_EQ(pictureOf(window), drawn(somewhere.size() - QSize(60, 60), {30, 30}));
}

TEST_F(WindowPixelsTest, haveTheFrameAroundThem)
{
    LivingWindow window("Framed", somewhere, {.isDecorated = true});
    ASSERT_TRUE(window.show());
    const QRect frame = described(window.id()).frameRect;
    ASSERT_GT(frame.height(), somewhere.height());
    QPoint corner;
    for (const DesktopWindow &one : desktopWindows())
        corner = one.id == window.id() ? one.position - frame.topLeft() : corner;
    const QImage picture = pictureOf(window);
    EXPECT_EQ(picture.size(), frame.size());
    EXPECT_EQ(picture.copy(QRect(corner, somewhere.size())), drawn(somewhere.size()));
}

TEST_F(WindowPixelsTest, areThoseOfOneSizeWhereItChangesMeanwhile)
{
    LivingWindow window("Changing", somewhere);
    ASSERT_TRUE(window.show());
    begin(described(window.id()));
    window.resize({420, 260});
    const QImage picture = finish();
    EXPECT_TRUE(picture.size() == QSize(420, 260) || picture.size() == somewhere.size());
    EXPECT_EQ(picture, drawn(picture.size()));
}

TEST_F(WindowPixelsTest, areNoneWhereTheWindowCloses)
{
    LivingWindow window("Closing", somewhere);
    ASSERT_TRUE(window.show());
    begin(described(window.id()));
    window.close();
    EXPECT_TRUE(finish().isNull());
    EXPECT_EQ(failure_, PictureFailure::Gone);
}

TEST_F(WindowPixelsTest, areNoneWhereTheWindowIsMinimised)
{
    LivingWindow window("Small", somewhere);
    ASSERT_TRUE(window.show());
    minimise(window.id());
    ASSERT_TRUE(waitUntil([&] { return described(window.id(), {true, {}}).isMinimised; }));
    begin(described(window.id(), {true, {}}));
    EXPECT_TRUE(finish().isNull());
    EXPECT_EQ(failure_, PictureFailure::Gone);
}

TEST_F(WindowPixelsTest, areTheSameUnderACompositor)
{
    const Compositor compositor;
    ASSERT_TRUE(compositor.isThere());
    LivingWindow window("Covered", somewhere);
    ASSERT_TRUE(window.show());
    WindowOfAnotherProgram above("Above", somewhere);
    ASSERT_TRUE(above.show());
    EXPECT_EQ(pictureOf(window), drawn(somewhere.size()));
}

TEST_F(WindowPixelsTest, areThereEvenOfAProgramThatHangs)
{
    LivingWindow window("Hanging", somewhere);
    ASSERT_TRUE(window.show());
    window.hang();
    EXPECT_EQ(pictureOf(window), drawn(somewhere.size()));
}

TEST_F(WindowPixelsTest, areThereEvenOfAProgramThatDrawsAllTheTime)
{
    LivingWindow window("Drawing", somewhere);
    ASSERT_TRUE(window.show());
    QTimer drawing;
    QObject::connect(&drawing, &QTimer::timeout, &drawing, [&] { window.draw(); });
    drawing.start(0);
    EXPECT_EQ(pictureOf(window), drawn(somewhere.size()));
}

TEST_F(WindowPixelsTest, comeInPartsWhereMemoryIsNotShared)
{
    const SecondDisplay display({"-extension", "MIT-SHM"});
    const QByteArray own = qgetenv("DISPLAY");
    qputenv("DISPLAY", display.name());
    const QImage whole = drawn({1001, 700});
    const DrawnWindow window(whole);
    begin(window.description());
    qputenv("DISPLAY", own);
    EXPECT_EQ(finish(), whole);
}
