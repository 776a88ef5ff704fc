// Which presses are repeats of a key that stays down.

#include "platform/appkit/KeyRepeats.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

namespace {

constexpr quint32 A = 38, B = 56;

class KeyRepeatsTest : public testing::Test
{
protected:
    bool isRepeat(quint32 scanCode, quint64 time, bool isKnownToTheToolkit = false)
    {
        const Event press(QEvent::KeyPress, scanCode, time, isKnownToTheToolkit);
        const bool isRepeated = repeats_.isRepeat(press);
        EXPECT_EQ(repeats_.isRepeat(press), isRepeated) << "asking changes nothing";
        repeats_.notePress(press);
        return isRepeated;
    }
    void release(quint32 scanCode, quint64 time)
    {
        repeats_.noteRelease(Event(QEvent::KeyRelease, scanCode, time, false));
    }

private:
    struct Event : QKeyEvent
    {
        Event(Type type, quint32 scanCode, quint64 time, bool isAutoRepeat)
            : QKeyEvent(type, Qt::Key_A, {}, scanCode, 0, 0, "a", isAutoRepeat)
        {
            setTimestamp(time);
        }
    };

    KeyRepeats repeats_;
};

} // namespace

TEST_F(KeyRepeatsTest, aReleaseAndAPressOfOneTimeAreARepeat)
{
    EXPECT_FALSE(isRepeat(A, 1000));
    release(A, 1500);
    EXPECT_TRUE(isRepeat(A, 1500));
    release(A, 1540);
    EXPECT_TRUE(isRepeat(A, 1540));
    release(A, 1600);
    EXPECT_FALSE(isRepeat(A, 1640));
}

TEST_F(KeyRepeatsTest, whatTheToolkitKnowsForARepeatIsOne)
{
    EXPECT_TRUE(isRepeat(A, 1000, true)) << "it went down elsewhere";
    EXPECT_FALSE(isRepeat(A, 2000));
}

TEST_F(KeyRepeatsTest, aKeyTypedTwiceInNoTimeIsNone)
{
    EXPECT_FALSE(isRepeat(A, 1000));
    release(A, 1000);
    EXPECT_FALSE(isRepeat(A, 1000, true));
    release(A, 1049);
    EXPECT_FALSE(isRepeat(A, 1049, true));
}

TEST_F(KeyRepeatsTest, anotherKeyInBetweenEndsIt)
{
    EXPECT_FALSE(isRepeat(A, 1000));
    release(A, 1500);
    EXPECT_FALSE(isRepeat(B, 1500));
    EXPECT_FALSE(isRepeat(A, 1500));
}
