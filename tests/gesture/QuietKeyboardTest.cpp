// What wakes the keys of a gesture up, and what does not.

#include "GestureSession.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <thread>

namespace {

constexpr quint32 untilCalm = ChordPresses::longestDouble + quint32(KeyboardWatch::calmDelay.count()) + 100;

class QuietKeyboard : public GestureSession
{
public:
    QuietKeyboard()
    {
        // With a device's first key, the keyboard takes over what that can do; the hot keys look at that a little
        // later.
        pressKey(KEY_A);
        waitForServer(100);
    }

    /// How often this thread's event loop wakes up while another one does something; its end counts as well.
    static int wakeUpsDuring(const std::function<void()> &typing)
    {
        int wakeUps = 0;
        QEventLoop loop;
        const auto count = QObject::connect(
            QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &loop, [&] { ++wakeUps; });
        std::thread typist;
        QMetaObject::invokeMethod(
            &loop,
            [&] {
                typist = std::thread([&] {
                    typing();
                    QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
                });
                wakeUps = 0;
            },
            Qt::QueuedConnection);
        loop.exec();
        typist.join();
        QObject::disconnect(count);
        return wakeUps;
    }
    int wakeUpsDuringNothing()
    {
        return wakeUpsDuring([this] {
            for (int question = 0; question < 1000; ++question)
                other.serverTime();
        });
    }
    static void typePlainKeys()
    {
        for (int key = 0; key < 1000; ++key)
            pressKey(KEY_A + key % 9);
    }
};

} // namespace

TEST_F(QuietKeyboard, sleepsThroughOrdinaryTyping)
{
    heard();
    const int floor = wakeUpsDuringNothing();
    EXPECT_EQ(wakeUpsDuring(typePlainKeys), floor);
    EXPECT_EQ(other.pressedKeys().size(), 1 + 1000);
    const auto typeWithControl = [] {
        for (int key = 0; key < 1000; ++key)
            pressKey(KEY_A, {KEY_LEFTCTRL});
    };
    EXPECT_GT(wakeUpsDuring(typeWithControl), floor) << "what wakes it up is counted";
}

TEST_F(QuietKeyboard, sleepsAgainSoonAfterTheModifiersWerePressed)
{
    holdModifiers();
    waitForServer(20);
    releaseModifiers();
    waitForServer(untilCalm);
    heard();
    EXPECT_EQ(wakeUpsDuring(typePlainKeys), wakeUpsDuringNothing());
}

TEST_F(QuietKeyboard, sleepsAgainAfterAGesture)
{
    beginHeld();
    keys.takeDigits({1, 2, 3});
    keys.grabKeyboard();
    keys.end();
    releaseModifiers();
    waitForServer(untilCalm);
    heard();
    EXPECT_EQ(wakeUpsDuring(typePlainKeys), wakeUpsDuringNothing());
}

TEST_F(QuietKeyboard, leavesNothingInTheServerAfterManyGestures)
{
    const auto gestures = [this](int count) {
        for (int gesture = 0; gesture < count; ++gesture) {
            keys.beginHeld();
            keys.takeDigits({1, 2, 3, 4, 5, 6, 7, 8, 9});
            if (gesture % 2)
                keys.grabKeyboard();
            keys.end();
        }
        heard();
    };
    gestures(2);
    const quint64 resources = other.resourcesOf(getpid());
    gestures(100);
    EXPECT_GT(resources, 0U);
    EXPECT_EQ(other.resourcesOf(getpid()), resources);
}
