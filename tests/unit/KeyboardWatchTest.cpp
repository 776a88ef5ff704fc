// What the keyboard is asked to tell, and when.

#include "agent/keys/KeyboardWatch.h"
#include "Wait.h"

#include <QElapsedTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Keeps what it is asked for; the display's is in tests/gesture.
class AskedKeyboard : public Keyboard
{
public:
    bool open() override { return true; }
    void watch(Events events) override { asked += events; }
    void catchUp(quint32) override { }
    quint32 heldModifiers() override { return 0; }
    bool isHeld(VirtualKeyCode) override { return false; }
    bool isAnythingHeldBut(quint32) override { return false; }
    bool grab() override { return false; }
    bool isScreenTaken() override { return false; }
    void letGo() override { }
    void ring() override { }

    QList<Events> asked;
};

const Keyboard::Events presses = Keyboard::KeyPresses, releases = Keyboard::KeyReleases, none;

class KeyboardWatchTest : public testing::Test
{
protected:
    AskedKeyboard keyboard;
    KeyboardWatch watch{keyboard};
};

} // namespace

TEST_F(KeyboardWatchTest, asksForMoreAtOnce)
{
    watch.setEvents(presses);
    EXPECT_THAT(keyboard.asked, ElementsAre(presses));
    watch.setEvents(presses | releases);
    EXPECT_THAT(keyboard.asked, ElementsAre(presses, presses | releases));
    watch.setEvents(presses | releases);
    EXPECT_THAT(keyboard.asked, ElementsAre(presses, presses | releases));
}

TEST_F(KeyboardWatchTest, asksForLessAfterAWhile)
{
    watch.setEvents(presses);
    keyboard.asked.clear();
    QElapsedTimer timer;
    timer.start();
    watch.setEvents(none);
    EXPECT_THAT(keyboard.asked, IsEmpty());
    EXPECT_TRUE(waitUntil([this] { return !keyboard.asked.isEmpty(); }));
    EXPECT_GE(timer.elapsed(), KeyboardWatch::calmDelay.count() * 9 / 10);
    EXPECT_THAT(keyboard.asked, ElementsAre(none));
}

TEST_F(KeyboardWatchTest, asksNothingForWhatComesBackMeanwhile)
{
    watch.setEvents(presses | releases);
    keyboard.asked.clear();
    watch.setEvents(none);
    watch.setEvents(releases);
    watch.setEvents(presses | releases);
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(waitUntil([&] { return timer.elapsed() > 2 * KeyboardWatch::calmDelay.count(); }));
    EXPECT_THAT(keyboard.asked, IsEmpty());
}

TEST_F(KeyboardWatchTest, asksForWhatIsWantedThenWhereMoreIsAddedMeanwhile)
{
    watch.setEvents(presses);
    watch.setEvents(none);
    watch.setEvents(releases);
    EXPECT_THAT(keyboard.asked, ElementsAre(presses, releases));
}

TEST_F(KeyboardWatchTest, asksAnewAfterTheDisplayHasGone)
{
    watch.setEvents(presses);
    watch.setEvents(none);
    watch.forget();
    watch.setEvents(presses);
    EXPECT_THAT(keyboard.asked, ElementsAre(presses, presses));
}
