#include "tutorial/StepRun.h"

#include <utility>

namespace {

constexpr int windowsInRow = 3;

} // namespace

void StepRun::begin(Shape start)
{
    start_ = start;
    moves_ = 0;
}

void StepRun::move()
{
    ++moves_;
    if (!isDone())
        phase_ = Phase::Selecting;
}

void StepRun::land(Shape shape)
{
    if (moves_ > 0 || shape != start_)
        end(isReached(shape));
}

void StepRun::cancel()
{
    if (moves_ > 0)
        end(step_ == Step::Cancel);
}

void StepRun::close()
{
    end(step_ == Step::Close);
}

bool StepRun::escape()
{
    if (step_ != Step::Cancel || isDone() || std::exchange(hasEscaped_, true))
        return false;
    phase_ = Phase::Missed;
    return true;
}

void StepRun::end(bool isNowDone)
{
    if (!isDone())
        phase_ = isNowDone ? Phase::Done : Phase::Missed;
    moves_ = 0;
}

/// The row has three windows: so many moves from the start to the first one do not go back to it.
bool StepRun::isWayAround(Shape shape) const
{
    if (shape != Shape::Circle || start_ > Shape::Triangle)
        return false;
    const int toTheRight = windowsInRow - int(start_);
    return moves_ % windowsInRow == toTheRight % windowsInRow;
}

bool StepRun::isReached(Shape shape) const
{
    switch (step_) {
    case Step::Move:
        return shape != start_;
    case Step::Wrap:
        return isWayAround(shape);
    case Step::Under:
        return shape == Shape::Star;
    case Step::Accept:
        return shape == Shape::Triangle;
    case Step::Cancel:
    case Step::Close:
        break;
    }
    return false;
}
