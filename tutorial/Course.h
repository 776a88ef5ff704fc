#pragma once

#include "tutorial/GuidePage.h"
#include "tutorial/Preparation.h"
#include "tutorial/RunningAgent.h"
#include "tutorial/StepRun.h"

#include <QTimer>
#include <optional>

/// The way through the tutorial: what has to be there first, the steps one after the other, and the end.
class Course : public QObject
{
    Q_OBJECT

public:
    Course();

    /// Called once, when the guide can show what comes of it.
    void begin();
    GuidePage page() const;

    // What the user wishes; without an effect where that makes no sense.
    void fulfil(Wish wish);
    /// Escape. False where it is to leave the tutorial.
    bool takeEscape();

    // What happens to the windows to practise with.
    void windowActivated(Shape shape);
    /// Whether it is to go.
    bool windowAskedToClose();

Q_SIGNALS:
    void pageChanged();
    /// The windows are needed, with this one in front.
    void stageNeeded(Shape front);
    void stageNotNeeded();

private:
    void hearReport(const AgentReport &report);
    void meet(const Preparation &preparation);
    bool isAtEnd() const { return !run_ && preparation_.obstacle == Obstacle::None; }
    void prepareFor(Obstacle obstacle) { meet({obstacle}); }
    void loseAgent(Obstacle obstacle);
    void goTo(qsizetype index);
    void goToEnd();
    void useOfferedModifiers();
    void startAgent();
    void hearBeginning();
    void hearMove();
    void hearAcceptance();
    void hearCancellation();
    bool hasLanded() const;
    void land();
    void settle();
    void goOnIfDone();

    RunningAgent agent_;
    std::optional<AgentReport> report_; ///< the newest
    Preparation preparation_{Obstacle::Asking};
    QList<Step> steps_;
    qsizetype index_ = 0; ///< of the step; behind the last one at the end
    std::optional<StepRun> run_; ///< of the step that is shown
    Shape current_ = Shape::None; ///< the window that is active
    bool isSelecting_ = false;
    bool goesOnWithout_ = false; ///< the keys that another program holds
    bool isNotStored_ = false; ///< what the user has chosen
    QTimer landing_; ///< until the window that was turned to must be there
    QTimer pause_; ///< for reading that a step is done
    QTimer agentsStart_; ///< until the agent that was started must have told of itself
};
