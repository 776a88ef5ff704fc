#pragma once

#include "tutorial/Steps.h"

/// How far somebody has come with a step, from what the agent tells of selections and which window is active after one.
class StepRun
{
public:
    enum class Phase : quint8 {
        Waiting,
        Selecting, ///< the frame has gone to another window
        Missed, ///< something else came out
        Done
    };

    explicit StepRun(Step step) : step_(step) { }

    Step step() const { return step_; }
    Phase phase() const { return phase_; }
    bool isDone() const { return phase_ == Phase::Done; }

    /// A selection has begun, at a window.
    void begin(Shape start);
    void move();
    /// It was accepted, and led to a window.
    void land(Shape shape);
    void cancel();
    /// One of the windows has been asked to close.
    void close();
    /// Escape was pressed when nothing was selected. Whether that was meant for the step.
    bool escape();

private:
    void end(bool isDone);
    bool isWayAround(Shape shape) const;
    bool isReached(Shape shape) const;

    Step step_;
    Phase phase_ = Phase::Waiting;
    Shape start_ = Shape::None;
    int moves_ = 0;
    bool hasEscaped_ = false;
};
