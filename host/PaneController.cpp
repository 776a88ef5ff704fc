#include "host/PaneController.h"

#include "host/PanePlugIn.h"
#include "host/PaneStage.h"
#include "platform/appkit/interface/NSPreferencePane.h"
#include "platform/foundation/Boundary.h"

#include <utility>

PaneController::PaneController(PaneStage *stage) : stage_(stage) { }

PaneController::~PaneController() = default;

NSPreferencePane *PaneController::current() const
{
    const auto found = panes_.find(currentPath_);
    return found == panes_.end() ? nullptr : found->second.get();
}

bool PaneController::call(const char *name, const std::function<void()> &operation)
{
    ++callsInProgress_;
    const bool completed = runAtBoundary(name, operation);
    if (--callsInProgress_ == 0)
        Q_EMIT paneReturned();
    return completed;
}

PaneFailureReport PaneController::load(const QString &bundlePath)
{
    PanePlugIn plugIn = loadPanePlugIn(bundlePath);
    if (plugIn.report)
        return plugIn.report;
    std::unique_ptr<NSPreferencePane> pane;
    bool initialised = false;
    // One call: nothing may come between the initialiser and the loading of the view.
    call("initWithBundle and loading of the main view", [&] {
        pane.reset(plugIn.principalClass->alloc());
        initialised = pane && pane->initWithBundle(plugIn.bundle);
        if (initialised)
            pane->loadMainView();
    });
    if (!pane)
        return {PaneFailure::NoPrincipalClass, QStringLiteral("alloc")};
    if (!initialised)
        return {PaneFailure::InitialiserFailed, QStringLiteral("initWithBundle")};
    if (!pane->mainView())
        return {PaneFailure::NoView, pane->mainNibName()};
    connect(
        pane.get(), &NSPreferencePane::replyToShouldUnselect, this, [this, asked = pane.get()](bool shouldUnselect) {
            if (asking_ && asked == current())
                takeReply(shouldUnselect);
        });
    QWidget *view = pane->mainView();
    panes_[bundlePath] = std::move(pane);
    Q_EMIT viewLoaded(bundlePath, view);
    return {};
}

PaneFailureReport PaneController::select(const QString &bundlePath)
{
    Q_ASSERT(currentPath_.isEmpty());
    if (!panes_.contains(bundlePath)) {
        if (PaneFailureReport report = load(bundlePath))
            return report;
    }
    NSPreferencePane *pane = panes_.at(bundlePath).get();
    if (!pane->mainView())
        return {PaneFailure::NoView, pane->mainNibName()};
    currentPath_ = bundlePath;
    call("willSelect", [pane] { pane->willSelect(); });
    selectionUnfinished_ = true;
    stage_->showView(pane->mainView(), [this] { finishSelection(); });
    return {};
}

void PaneController::finishSelection()
{
    NSPreferencePane *pane = current();
    if (std::exchange(selectionUnfinished_, false) && pane)
        call("didSelect", [pane] { pane->didSelect(); });
}

void PaneController::leave(std::function<void()> afterwards)
{
    if (currentPath_.isEmpty()) {
        afterwards();
        return;
    }
    afterwards_ = std::move(afterwards);
    if (!asking_)
        ask();
}

void PaneController::ask()
{
    finishSelection();
    asking_ = true;
    reply_.reset();
    NSPreferencePaneUnselectReply answer = NSUnselectNow;
    call("shouldUnselect", [&answer, pane = current()] { answer = pane->shouldUnselect(); });
    if (answer != NSUnselectLater)
        reply_ = answer != NSUnselectCancel;
    if (asking_ && reply_)
        takeReply(*reply_);
}

void PaneController::takeReply(bool shouldUnselect)
{
    reply_ = shouldUnselect;
    // A reply given within shouldUnselect counts once that has returned.
    if (isInsidePane())
        return;
    asking_ = false;
    const std::function<void()> afterwards = std::exchange(afterwards_, {});
    if (!shouldUnselect) {
        Q_EMIT paneWasKept();
        return;
    }
    leaveAtOnce();
    afterwards();
}

void PaneController::leaveAtOnce()
{
    NSPreferencePane *pane = current();
    if (!pane)
        return;
    finishSelection();
    asking_ = false;
    afterwards_ = {};
    call("willUnselect", [pane] { pane->willUnselect(); });
    if (pane->mainView())
        stage_->hideView(pane->mainView());
    currentPath_.clear();
    call("didUnselect", [pane] { pane->didUnselect(); });
}

void PaneController::releaseAll()
{
    Q_ASSERT(currentPath_.isEmpty());
    panes_.clear();
}
