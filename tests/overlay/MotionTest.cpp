// How the frame goes from one window to the next.

#include "Compositor.h"
#include "MarkOnGround.h"
#include "WindowListener.h"
#include "agent/overlay/OverlayMotion.h"

namespace {

const QRect start(40, 40, 200, 150), nextPlace(340, 240, 200, 150), otherSize(200, 200, 300, 100);

class Motion : public Mark
{
protected:
    Motion() { useColor(blue, 1, true); }
    /// A first showing, which has nowhere to come from.
    void markStart()
    {
        mark(start);
        ASSERT_TRUE(showsOnScreen(expected(start)));
        listener_.places();
    }
    /// Waits for the end of what has begun.
    QList<QRect> placesUntil(const QRect &last)
    {
        QList<QRect> places;
        EXPECT_TRUE(waitUntil([&] {
            places += listener_.places();
            return !places.isEmpty() && places.last() == last;
        }));
        return places;
    }

    WindowListener listener_; ///< hears of the frame and its like
};

bool isOnTheWay(const QRect &place, const QRect &from, const QRect &to)
{
    return (from | to).contains(place);
}

} // namespace

TEST_P(Motion, hasAtMostEightSteps)
{
    markStart();
    mark(nextPlace);
    const QList<QRect> places = placesUntil(nextPlace);
    EXPECT_GE(places.size(), 2);
    EXPECT_LE(places.size(), OverlayMotion::mostSteps + 1) << "the start is told too";
    for (const QRect &place : places)
        EXPECT_TRUE(isOnTheWay(place, start, nextPlace));
    EXPECT_TRUE(showsOnScreen(expected(nextPlace)));
}

TEST_P(Motion, isNoneAtTheFirstShowing)
{
    listener_.places();
    mark(start);
    EXPECT_EQ(placesUntil(start), QList{start});
}

TEST_P(Motion, jumpsToItsEndAtAShowing)
{
    markStart();
    mark(nextPlace);
    const QRect last = start.translated(0, 200);
    mark(last);
    const QList<QRect> places = placesUntil(last);
    ASSERT_TRUE(places.contains(nextPlace));
    for (const QRect &place : places.mid(places.indexOf(nextPlace)))
        EXPECT_TRUE(isOnTheWay(place, nextPlace, last));
}

TEST_P(Motion, betweenSizesIsNoneWithoutACompositor)
{
    markStart();
    mark(otherSize);
    EXPECT_EQ(placesUntil(otherSize), QList{otherSize});
    EXPECT_TRUE(showsOnScreen(expected(otherSize)));
}

TEST_P(Motion, betweenSizesComesWithACompositor)
{
    const Compositor compositor;
    ASSERT_TRUE(compositor.isThere());
    mark(start);
    ExpectedFrame frame = expected(start);
    frame.tint = 0.25;
    ASSERT_TRUE(showsOnScreen(frame, 3));
    listener_.places();
    listener_.disappearances();
    mark(otherSize);
    QList<QRect> places; // those of the tint are among them
    ASSERT_TRUE(waitUntil([&] {
        places += listener_.places();
        return places.contains(otherSize);
    }));
    EXPECT_GT(places.indexOf(otherSize), 2);
    for (const QRect &place : places)
        EXPECT_TRUE(isOnTheWay(place, start, otherSize));
    EXPECT_EQ(listener_.disappearances(), 0);
    frame.rect = otherSize;
    EXPECT_TRUE(showsOnScreen(frame, 3));
}

TEST_P(Motion, endsWithHiding)
{
    markStart();
    mark(nextPlace);
    hide();
    EXPECT_TRUE(showsOnScreen(ground));
    overlay_.reset();
    EXPECT_TRUE(showsOnScreen(ground));
}

TEST_P(Motion, isNoneUnlessAskedFor)
{
    useColor(blue);
    markStart();
    mark(nextPlace);
    EXPECT_EQ(placesUntil(nextPlace), QList{nextPlace});
}

INSTANTIATE_TEST_SUITE_P(Ground, Motion, testing::Values(lightGround));
