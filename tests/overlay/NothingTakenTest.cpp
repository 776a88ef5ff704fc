// The mark lets everything through, and leaves nothing behind.

#include "Compositor.h"
#include "DesktopWindows.h"
#include "ForeignWindow.h"
#include "KeyPress.h"
#include "MarkOnGround.h"
#include "OtherClient.h"
#include "SecondDisplay.h"
#include "WindowListener.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xtest.h>

namespace {

/// Presses and releases the left button there, as a user does.
void click(QPoint place)
{
    const XConnection connection = connectToXServer();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    xcb_test_fake_input(connection.get(), XCB_MOTION_NOTIFY, false, 0, root, qint16(place.x()), qint16(place.y()), 0);
    xcb_test_fake_input(connection.get(), XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1, 0, root, 0, 0, 0);
    xcb_test_fake_input(connection.get(), XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1, 0, root, 0, 0, 0);
    fromServer(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()), nullptr));
}

/// With everything that there is to draw.
OverlayView fullView(const QRect &rect, const QString &title)
{
    OverlayView view = viewOf(rect);
    view.title = title;
    view.isCovered = true;
    for (int digit = 1; digit <= 9; ++digit)
        view.labels += {digit, QRect(20 * digit, 60 * (digit % 3), 300, 200)};
    return view;
}

void showOften(MarkOnGround &mark, int times)
{
    for (int time = 0; time < times; ++time) {
        mark.useColor(time / 100 % 2 ? blue : yellow);
        mark.show(fullView(QRect(time % 200, time % 150, 200 + time % 170, 150 + time % 130), QString::number(time)));
        runPendingEvents();
        if (time % 10 == 0)
            mark.hide();
    }
    mark.hide();
}

class Nothing : public Mark
{
};

} // namespace

TEST_P(Nothing, isTakenOfClicks)
{
    const QRect rect(100, 80, 400, 300);
    show(fullView(rect, "Title"));
    waitUntil([] { return screenPicture().pixel(300, 230) == blue; });
    const QList<QPoint> places{{103, 200}, {100, 80}, {300, 100}, {300, 230}, {40, 90}, {499, 379}};
    for (const QPoint place : places)
        click(place);
    EXPECT_TRUE(waitUntil([&] { return ground_.clicks() == places.size(); }));
}

TEST_P(Nothing, isTakenOfClicksWithACompositor)
{
    const Compositor compositor;
    ASSERT_TRUE(compositor.isThere());
    mark({100, 80, 400, 300});
    ASSERT_TRUE(waitUntil([] { return screenPicture().pixel(300, 230) != GetParam(); })) << "tinted";
    click({103, 200});
    click({300, 230});
    EXPECT_TRUE(waitUntil([this] { return ground_.clicks() == 2; }));
}

TEST_P(Nothing, isTakenOfTheFocus)
{
    const ForeignWindow window("In use");
    ASSERT_TRUE(window.takesFocus());
    const QList<quint32> before = stackedWindows();
    show(fullView({100, 80, 400, 300}, "Title"));
    ASSERT_TRUE(waitUntil([] { return screenPicture().pixel(300, 230) == blue; }));
    EXPECT_EQ(activeWindow(), window.id());
    EXPECT_EQ(stackedWindows(), before) << "no window that is managed";
}

TEST_P(Nothing, isLeftOnScreen)
{
    const QImage before = screenPicture();
    show(fullView({100, 80, 400, 300}, "Title"));
    ASSERT_TRUE(waitUntil([] { return screenPicture().pixel(300, 230) == blue; }));
    hide();
    EXPECT_TRUE(waitUntil([&] { return screenPicture() == before; }));
    runPendingEvents();
    EXPECT_EQ(screenPicture(), before) << "what was still to be drawn";
}

TEST_P(Nothing, comesUpAfterHiding)
{
    WindowListener listener;
    show(fullView({100, 80, 400, 300}, "Title"));
    hide();
    runPendingEvents();
    mark({300, 200, 100, 100});
    EXPECT_TRUE(showsOnScreen(expected({300, 200, 100, 100})));
    EXPECT_EQ(listener.appearances(), 2) << "of the frame, and of no text";
}

TEST_P(Nothing, isUnmappedByAPlainMove)
{
    mark({100, 80, 400, 300});
    ASSERT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
    WindowListener listener;
    mark({110, 90, 400, 300});
    ASSERT_TRUE(showsOnScreen(expected({110, 90, 400, 300})));
    EXPECT_EQ(listener.disappearances(), 0);
    mark({110, 90, 300, 300});
    ASSERT_TRUE(showsOnScreen(expected({110, 90, 300, 300})));
    EXPECT_EQ(listener.disappearances(), 1) << "to another size it is";
}

TEST_P(Nothing, isLeftByAProcessThatIsKilled)
{
    const QImage before = screenPicture();
    for (const bool isStopped : {false, true}) {
        overlay_.reset();
        const pid_t process = ::fork();
        if (process == 0) {
            overlay_ = overlay();
            useColor(blue);
            mark({100, 80, 400, 300});
            for (;;)
                ::pause();
        }
        EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
        if (isStopped)
            ::kill(process, SIGSTOP);
        ::kill(process, SIGKILL);
        EXPECT_EQ(::waitpid(process, nullptr, 0), process);
        EXPECT_TRUE(waitUntil([&] { return screenPicture() == before; }));
    }
}

INSTANTIATE_TEST_SUITE_P(Ground, Nothing, testing::Values(lightGround, darkGround));

TEST(Resources, ofTheServerDoNotGrowInAThousandShowings)
{
    OtherClient client;
    MarkOnGround ground(lightGround);
    showOften(ground, 20);
    const quint64 before = client.resourcesOf(QCoreApplication::applicationPid());
    ASSERT_GT(before, 10u);
    showOften(ground, 1000);
    EXPECT_EQ(client.resourcesOf(QCoreApplication::applicationPid()), before);
}

TEST(LostDisplay, isSurvived)
{
    SecondDisplay display;
    const QByteArray own = qgetenv("DISPLAY");
    qputenv("DISPLAY", display.name());
    const auto mark = overlay();
    qputenv("DISPLAY", own);
    mark->setStyle({colorOf(blue), true});
    mark->showOverlay(fullView({10, 10, 300, 200}, "Title"));
    runPendingEvents();
    mark->showOverlay(fullView({20, 10, 300, 200}, "Title"));
    display.end();
    mark->showOverlay(fullView({10, 10, 400, 200}, "Title"));
    runPendingEvents();
    mark->hideOverlay();
    mark->showOverlay(fullView({10, 10, 300, 200}, "Title"));
    runPendingEvents();
}

TEST(LostDisplay, thatWasNeverThereIsSurvivedToo)
{
    const QByteArray own = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":59999");
    const auto mark = overlay();
    qputenv("DISPLAY", own);
    mark->setStyle({colorOf(blue), true});
    mark->showOverlay(fullView({10, 10, 300, 200}, "Title"));
    runPendingEvents();
    mark->hideOverlay();
}
