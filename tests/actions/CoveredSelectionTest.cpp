// The picture of a selected window that others cover, at its place below the mark.

#include "KeyPress.h"
#include "LivingWindow.h"
#include "OtherClient.h"
#include "ScreenPicture.h"
#include "WindowsOnDesktop.h"
#include "agent/actions/UncoveringOverlay.h"
#include "agent/gestures/GestureView.h"

#include <QAbstractEventDispatcher>
#include <thread>

namespace {

// Without room for a title inside.
const QRect somewhere(100, 120, 280, 200);
constexpr QRgb red = 0xffc02020, green = 0xff20c020, blue = 0xff2020c0;
constexpr int frameWidth = 8, iconSide = 100, step = 3;

class CoveredSelection : public WindowsOnDesktop
{
protected:
    CoveredSelection() { overlay.setStyle({NSColor::colorWithDeviceRGBA(1, 1, 0, 0), false}); }
    void SetUp() override { ASSERT_TRUE(window.show()); }

    void select(quint32 windowID) { overlay.showOverlay(gestureView(world({true, {}}), windowID, digits)); }
    static void cover(WindowOfAnotherProgram &other)
    {
        other.setUndecorated().setColor(blue & 0xffffff);
        EXPECT_TRUE(other.show());
        EXPECT_TRUE(other.takesFocus());
        EXPECT_TRUE(waitUntil([] { return screenPicture().pixel(somewhere.center()) == blue; }));
    }
    /// What lies between the frame and the icon in the middle.
    static QRegion inside(const QRect &rect)
    {
        QRect icon(0, 0, iconSide, iconSide);
        icon.moveCenter(rect.center());
        return QRegion(rect.adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth)) - icon;
    }
    /// Looked at as densely as it takes to miss nothing.
    static bool shows(const QRegion &region, const std::function<QRgb(QPoint)> &color)
    {
        const QImage screen = screenPicture();
        for (const QRect &rect : region) {
            for (int y = rect.top(); y <= rect.bottom(); y += step) {
                for (int x = rect.left(); x <= rect.right(); x += step) {
                    if (screen.pixel(x, y) != color({x, y}))
                        return false;
                }
            }
        }
        return true;
    }
    static bool isPlain(const QRegion &region, QRgb color)
    {
        return shows(region, [color](QPoint) { return color; });
    }
    static bool comesToBePlain(const QRegion &region, QRgb color)
    {
        return waitUntil([&] { return isPlain(region, color); });
    }
    /// In the middle of its left side, also where a compositor lets something shine through.
    static bool hasFrame(const QRect &rect, const QImage &screen = screenPicture())
    {
        const QRgb pixel = screen.pixel(rect.left() + frameWidth / 2, rect.center().y());
        return qRed(pixel) >= 150 && qGreen(pixel) >= 150;
    }
    static QRgb drawn(QPoint place) { return LivingWindow::colorAt(place - somewhere.topLeft()); }

    LivingWindow window{"Covered", somewhere};
    QHash<int, quint32> digits;
    UncoveringOverlay overlay{::overlay()};
};

class WhollyCoveredSelection : public CoveredSelection
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(CoveredSelection::SetUp());
        cover(above);
    }

    WindowOfAnotherProgram above{"Above", somewhere.adjusted(-30, -30, 30, 30)};
};

int wakeUpsDuring(const std::function<void()> &work)
{
    int wakeUps = 0;
    QEventLoop loop;
    const auto counting = QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &loop, [&] { ++wakeUps; });
    std::thread worker([&] {
        work();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
    QObject::disconnect(counting);
    return wakeUps;
}

} // namespace

TEST_F(WhollyCoveredSelection, isSeenWhole)
{
    select(window.id());
    EXPECT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    EXPECT_TRUE(hasFrame(somewhere)) << "the mark stands over it";
    EXPECT_TRUE(isPlain(QRegion(somewhere.adjusted(-20, -20, 20, 0)) - somewhere.adjusted(0, -40, 0, 0), blue))
        << "nothing else differs";
}

TEST_F(CoveredSelection, isSeenWholeWhereAPartIsCovered)
{
    WindowOfAnotherProgram above("Above", somewhere.translated(40, 50));
    cover(above);
    select(window.id());
    EXPECT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    EXPECT_TRUE(isPlain(QRegion(somewhere.translated(40, 50)) - somewhere.adjusted(0, 0, 0, 40), blue));
}

TEST_F(CoveredSelection, isSeenAsFarAsTheScreenGoes)
{
    const QRect beyond(-100, 120, 280, 200);
    LivingWindow outside("Outside", beyond);
    ASSERT_TRUE(outside.show());
    if (described(outside.id()).frameRect != beyond)
        GTEST_SKIP() << "the window manager lets no window begin beyond the screen";
    WindowOfAnotherProgram above("Above", {0, 100, 400, 300});
    cover(above);
    select(outside.id());
    const QRect seen(0, 120, 180, 200);
    EXPECT_TRUE(waitUntil([&] {
        return shows(inside(seen), [&](QPoint place) { return LivingWindow::colorAt(place - beyond.topLeft()); });
    }));
}

TEST_F(CoveredSelection, isToldApartFromOthersOfItsSize)
{
    const std::array colors{red, green, blue};
    std::vector<std::unique_ptr<LivingWindow>> cascade;
    for (int place = 0; place < 3; ++place) {
        cascade.push_back(std::make_unique<LivingWindow>("One of them", somewhere.translated(20 * place, 20 * place)));
        ASSERT_TRUE(cascade.back()->show());
        cascade.back()->draw(colors[size_t(place)]);
    }
    for (const int place : {1, 0, 1, 2, 0}) {
        select(cascade[size_t(place)]->id());
        EXPECT_TRUE(comesToBePlain(inside(somewhere.translated(20 * place, 20 * place)), colors[size_t(place)]))
            << place;
    }
}

TEST_F(WhollyCoveredSelection, isSeenNoMoreWhereAnotherIsSelected)
{
    select(window.id());
    ASSERT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    select(above.id());
    EXPECT_TRUE(comesToBePlain(inside(somewhere), blue));
}

TEST_F(WhollyCoveredSelection, followsWhatTheWindowDraws)
{
    select(window.id());
    ASSERT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    window.draw(green);
    ASSERT_TRUE(comesToBePlain(inside(somewhere), green));
    window.draw(red);
    EXPECT_TRUE(comesToBePlain(inside(somewhere), red));
}

TEST_F(WhollyCoveredSelection, wakesNobodyWhileTheWindowDrawsNothing)
{
    const auto nothing = [] {
        OtherClient other;
        for (int question = 0; question < 1000; ++question)
            other.serverTime();
    };
    const int wakeUpsWithout = wakeUpsDuring(nothing);
    select(window.id());
    for (const QRgb color : {green, red, green, red})
        window.draw(color);
    ASSERT_TRUE(comesToBePlain(inside(somewhere), red));
    EXPECT_LE(wakeUpsDuring(nothing), wakeUpsWithout + 1);
}

TEST_F(WhollyCoveredSelection, isGoneTogetherWithTheMark)
{
    const QImage before = screenPicture();
    for (int time = 0; time < 20; ++time) {
        select(window.id());
        ASSERT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
        overlay.hideOverlay();
        const auto isTorn = [](const QImage &screen) {
            return screen.pixel(somewhere.topLeft() + QPoint(20, 20)) != blue && !hasFrame(somewhere, screen);
        };
        EXPECT_TRUE(waitUntil([&] { return !isTorn(screenPicture()); }, 100)) << "but in a compositor's own picture";
    }
    EXPECT_TRUE(waitUntil([&] { return screenPicture() == before; }));
}

TEST_F(WhollyCoveredSelection, costsNothingWhereItIsOnlyPassed)
{
    OtherClient other;
    select(above.id());
    const quint64 before = other.resourcesOf(QCoreApplication::applicationPid());
    select(window.id());
    EXPECT_EQ(other.resourcesOf(QCoreApplication::applicationPid()), before);
}

TEST_F(CoveredSelection, letsClicksThrough)
{
    OverlayView view = gestureView(world(), window.id(), {});
    view.isOverlapped = true;
    ScreenGround ground(blue);
    overlay.showOverlay(view);
    ASSERT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    clickAt(somewhere.topLeft() + QPoint(30, 30));
    EXPECT_TRUE(waitUntil([&] { return ground.clicks() == 1; }));
}

TEST_F(WhollyCoveredSelection, takesNoFocusAndIsNoWindowOfTheManagers)
{
    const QList<quint32> listed = stackedWindows();
    const quint32 active = activeWindow();
    select(window.id());
    ASSERT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    EXPECT_EQ(stackedWindows(), listed);
    EXPECT_EQ(activeWindow(), active);
}

TEST_F(WhollyCoveredSelection, leavesTheDigitsAboveIt)
{
    digits = {{1, above.id()}, {2, window.id()}};
    select(window.id());
    const QRect label(somewhere.topLeft() + QPoint(16, 16), QSize(20, 20));
    const auto isLabelSeen = [&] { return !shows(label, drawn) && !isPlain(label, blue); };
    ASSERT_TRUE(waitUntil([&] { return shows(inside(somewhere) - QRect(100, 100, 130, 130), drawn); }));
    EXPECT_TRUE(waitUntil(isLabelSeen));
    // Its digit is on screen already where it is selected next.
    select(above.id());
    select(window.id());
    ASSERT_TRUE(waitUntil([&] { return shows(inside(somewhere) - QRect(100, 100, 130, 130), drawn); }));
    EXPECT_TRUE(isLabelSeen());
}

TEST_F(WhollyCoveredSelection, hasNoPictureWhileOneIsShownElsewhere)
{
    select(window.id());
    ASSERT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    overlay.pause();
    EXPECT_TRUE(comesToBePlain(inside(somewhere), blue));
    overlay.goOn();
    EXPECT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
}

TEST_F(WhollyCoveredSelection, losesItsPictureWithTheWindow)
{
    select(window.id());
    ASSERT_TRUE(waitUntil([] { return shows(inside(somewhere), drawn); }));
    minimise(window.id());
    EXPECT_TRUE(comesToBePlain(inside(somewhere), blue));
    EXPECT_TRUE(hasFrame(somewhere)) << "which is the gesture's to take away";
}

TEST_F(CoveredSelection, keepsItsPlaceWhereTheWindowGetsAnotherSize)
{
    window.draw(red);
    WindowOfAnotherProgram above("Above", somewhere.adjusted(-30, -30, 30, 30));
    cover(above);
    select(window.id());
    ASSERT_TRUE(comesToBePlain(inside(somewhere), red));
    window.resize({400, 300});
    window.draw(green);
    EXPECT_TRUE(comesToBePlain(inside(somewhere), green));
    EXPECT_TRUE(isPlain(QRegion(somewhere.adjusted(0, 0, 20, 20)) - somewhere, blue));
}

TEST_F(WhollyCoveredSelection, leavesNothingInTheServerAfterAThousandMoves)
{
    OtherClient other;
    const auto move = [&](int times) {
        for (int time = times; time > 0; --time) {
            select(above.id());
            select(window.id());
            const bool isWaitedFor = time % 20 == 1;
            ASSERT_TRUE(!isWaitedFor || waitUntil([] { return shows(inside(somewhere), drawn); })) << time;
        }
        overlay.hideOverlay();
    };
    const qint64 process = QCoreApplication::applicationPid();
    ASSERT_NO_FATAL_FAILURE(move(20));
    const quint64 resources = other.resourcesOf(process), pictures = other.pictureBytesOf(process);
    ASSERT_NO_FATAL_FAILURE(move(1000));
    EXPECT_TRUE(waitUntil([&] { return other.resourcesOf(process) <= resources; })) << other.resourcesOf(process);
    EXPECT_TRUE(waitUntil([&] { return other.pictureBytesOf(process) <= pictures; })) << other.pictureBytesOf(process);
}
