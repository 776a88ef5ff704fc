#include "tutorial/Course.h"

#include "KTXConstants.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "tutorial/PreparationPage.h"
#include "tutorial/StepPages.h"
#include "tutorial/TutorialText.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto mostTimeToLand = 2s;
constexpr auto timeToRead = 1200ms;
constexpr auto mostTimeToStart = 10s;

} // namespace

Course::Course()
{
    landing_.setSingleShot(true);
    landing_.setInterval(mostTimeToLand);
    connect(&landing_, &QTimer::timeout, this, &Course::land);
    pause_.setSingleShot(true);
    pause_.setInterval(timeToRead);
    connect(&pause_, &QTimer::timeout, this, &Course::goOnIfDone);
    agentsStart_.setSingleShot(true);
    agentsStart_.setInterval(mostTimeToStart);
    connect(&agentsStart_, &QTimer::timeout, this, [this] { prepareFor(Obstacle::AgentDoesNotStart); });
    connect(&agent_, &RunningAgent::told, this, &Course::hearReport);
    connect(&agent_, &RunningAgent::wentOff, this, [this] { loseAgent(Obstacle::AgentOff); });
    connect(&agent_, &RunningAgent::saidNothing, this, [this] { loseAgent(Obstacle::AgentSilent); });
    connect(&agent_, &RunningAgent::selectionBegan, this, &Course::hearBeginning);
    connect(&agent_, &RunningAgent::selectionMoved, this, &Course::hearMove);
    connect(&agent_, &RunningAgent::selectionAccepted, this, &Course::hearAcceptance);
    connect(&agent_, &RunningAgent::selectionCancelled, this, &Course::hearCancellation);
    connect(&agent_, &RunningAgent::selectionRefused, this, &Course::settle);
}

/// Who has done all steps needs none any more.
void Course::loseAgent(Obstacle obstacle)
{
    if (!isAtEnd())
        prepareFor(obstacle);
}

void Course::begin()
{
    if (RunningAgent::isBusThere())
        agent_.ask();
    else
        prepareFor(Obstacle::NoBus);
}

GuidePage Course::page() const
{
    if (isAtEnd())
        return pageOfEnd(*report_);
    GuidePage page = run_ ? pageOfStep(*run_, *report_) : pageOfPreparation(preparation_);
    if (run_) {
        page.number = int(index_) + 1;
        page.count = int(steps_.size());
        page.skip = {Wish::Skip, tutorialText("&Skip this step")};
        page.canGoBack = index_ > 0;
    } else if (preparation_.obstacle == Obstacle::KeysHeld && !possibleSteps(*report_).isEmpty()) {
        page.skip = {Wish::Skip, tutorialText("Go on &without these keys")};
    }
    if (isNotStored_) {
        page.remark = tutorialText("Your choice could not be stored. The disk may be full.");
        page.tone = GuidePage::Tone::Hint;
    }
    return page;
}

void Course::fulfil(Wish wish)
{
    switch (wish) {
    case Wish::None:
    case Wish::Leave:
        break;
    case Wish::StartAgent:
        startAgent();
        break;
    case Wish::UseModifiers:
        useOfferedModifiers();
        break;
    case Wish::AskAgain:
        agent_.askAfterReading();
        break;
    case Wish::GoBack:
        if (run_ && index_ > 0)
            goTo(index_ - 1);
        break;
    case Wish::Skip:
        if (run_) {
            goTo(index_ + 1);
        } else if (preparation_.obstacle == Obstacle::KeysHeld) {
            goesOnWithout_ = true;
            hearReport(AgentReport(*report_));
        }
        break;
    case Wish::StartOver:
        goTo(0);
        break;
    }
}

bool Course::takeEscape()
{
    // The agent takes the one that ends a selection.
    const bool isTaken = isSelecting_ || (run_ && run_->escape());
    if (isTaken)
        Q_EMIT pageChanged();
    return isTaken;
}

void Course::hearReport(const AgentReport &report)
{
    agentsStart_.stop();
    const std::optional<Step> shown = run_ ? std::optional(run_->step()) : std::nullopt;
    const bool wasAtEnd = isAtEnd();
    report_ = report;
    steps_ = possibleSteps(report);
    const Preparation preparation = preparationFor(report);
    const bool isHeld = preparation.obstacle == Obstacle::KeysHeld;
    if (wasAtEnd || (isHeld && goesOnWithout_ && !steps_.isEmpty()))
        preparation_ = {};
    else
        meet(preparation);
    if (preparation_.obstacle != Obstacle::None)
        return;
    if (!wasAtEnd && !(shown && run_ && steps_.value(index_) == *shown))
        goTo(shown ? std::max<qsizetype>(steps_.indexOf(*shown), 0) : std::min(index_, steps_.size() - 1));
    else
        Q_EMIT pageChanged();
}

void Course::meet(const Preparation &preparation)
{
    preparation_ = preparation;
    if (preparation.obstacle == Obstacle::None)
        return;
    run_.reset();
    isSelecting_ = false;
    landing_.stop();
    pause_.stop();
    Q_EMIT stageNotNeeded();
    Q_EMIT pageChanged();
}

void Course::goTo(qsizetype index)
{
    landing_.stop();
    pause_.stop();
    index_ = index;
    if (index_ >= steps_.size()) {
        goToEnd();
        return;
    }
    run_.emplace(steps_.at(index_));
    Q_EMIT pageChanged();
    Q_EMIT stageNeeded(startOf(run_->step()));
}

void Course::goToEnd()
{
    run_.reset();
    Q_EMIT stageNotNeeded();
    Q_EMIT pageChanged();
}

void Course::startAgent()
{
    if (preparation_.obstacle == Obstacle::OffForNow) {
        RunningAgent::switchOn();
        return;
    }
    const bool runs = RunningAgent::start();
    prepareFor(runs ? Obstacle::Asking : Obstacle::AgentDoesNotStart);
    if (runs)
        agentsStart_.start();
}

/// As the agent does it itself.
void Course::useOfferedModifiers()
{
    if (preparation_.offered == 0)
        return;
    CFPreferencesSetAppValue(KTXModifierMask, qlonglong(preparation_.offered), KTXLMAppID);
    isNotStored_ = !CFPreferencesAppSynchronize(KTXLMAppID);
    if (isNotStored_) {
        LMPreferencesTakeBackAppValue(KTXModifierMask, KTXLMAppID);
        Q_EMIT pageChanged();
        return;
    }
    agent_.askAfterReading();
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), KTXLMPrefsChanged, KTXLMAgentID, {}, true);
}

void Course::windowActivated(Shape shape)
{
    current_ = shape;
    if (landing_.isActive() && hasLanded())
        land();
}

bool Course::windowAskedToClose()
{
    if (!run_ || run_->step() != Step::Close)
        return false;
    run_->close();
    settle();
    return true;
}

void Course::hearBeginning()
{
    isSelecting_ = true;
    if (run_)
        run_->begin(startOf(run_->step()));
}

/// The focus may be heard of before the whole selection that led there, so where that began is known by the step alone.
bool Course::hasLanded() const
{
    return run_ && current_ != Shape::None && current_ != startOf(run_->step());
}

void Course::hearMove()
{
    if (!run_)
        return;
    run_->move();
    Q_EMIT pageChanged();
}

/// The window that was turned to may have become the active one already.
void Course::hearAcceptance()
{
    isSelecting_ = false;
    if (hasLanded())
        land();
    else
        landing_.start();
}

void Course::hearCancellation()
{
    if (run_)
        run_->cancel();
    settle();
}

void Course::land()
{
    landing_.stop();
    if (!run_)
        return;
    run_->land(current_);
    settle();
    if (run_->phase() == StepRun::Phase::Missed)
        Q_EMIT stageNeeded(startOf(run_->step()));
}

/// No selection is on any more.
void Course::settle()
{
    isSelecting_ = false;
    Q_EMIT pageChanged();
    if (run_ && run_->isDone() && !pause_.isActive())
        pause_.start();
    else
        goOnIfDone();
}

void Course::goOnIfDone()
{
    if (run_ && run_->isDone() && !isSelecting_ && !pause_.isActive())
        goTo(index_ + 1);
}
