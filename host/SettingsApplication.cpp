#include "host/SettingsApplication.h"

#include "host/PageMemory.h"
#include "host/WaitingUpdates.h"

#include <QApplication>
#include <QThread>
#include <QTimer>
#include <utility>

SettingsApplication::SettingsApplication(const QStringList &folders)
    : folders_(folders), window_(state_.windowSize()), notices_(window_.noticeBar(), &state_), controller_(&window_)
{
    connect(&window_, &HostWindow::paneOpened, this, [this](const QString &path) {
        go({Destination::Kind::Pane, path});
    });
    connect(&window_, &HostWindow::backRequested, this, &SettingsApplication::showOverview);
    connect(&window_, &HostWindow::searchRequested, this, &SettingsApplication::search);
    connect(&window_, &HostWindow::closeRequested, this, &SettingsApplication::terminate);
    connect(&window_, &HostWindow::activated, &notices_, &StoreNotices::refresh);
    connect(&window_, &HostWindow::unblocked, this, &SettingsApplication::goOnWhenPossible);
    connect(&controller_, &PaneController::paneReturned, this, &SettingsApplication::goOnWhenPossible);
    connect(&controller_, &PaneController::viewLoaded, this, &SettingsApplication::rememberPages);
    connect(&controller_, &PaneController::paneWasKept, this, &SettingsApplication::keepPane);
}

SettingsApplication::~SettingsApplication()
{
    finish();
}

void SettingsApplication::start(const QString &request)
{
    // Before anything of a bundle is read: what is known of one stays, as does code.
    finishUpdates(paneBundles(folders_, request));
    const QList<InstalledPane> panes = request.isEmpty() ? installedPanes(folders_) : QList<InstalledPane>();
    const QString wanted = panes.size() == 1 ? panes.first().path : request;
    go(wanted.isEmpty() ? Destination{Destination::Kind::Overview, {}} : Destination{Destination::Kind::Pane, wanted});
    window_.show();
}

/// Then the overview would show nothing that is not on screen already.
bool SettingsApplication::isOnlyPane(const QString &path) const
{
    const QList<InstalledPane> panes = installedPanes(folders_);
    return panes.size() == 1 && panes.first().path == path;
}

void SettingsApplication::rememberPages(const QString &path, QWidget *view)
{
    const QString pane = describePane(path).identifier;
    showFirst(view, state_.lastPage(pane));
    followPages(view, [this, pane](const QString &page) { state_.setLastPage(pane, page); });
}

void SettingsApplication::open(const QString &request, const QString &activationToken)
{
    if (endsAtOnce_)
        return;
    window_.bringToFront(activationToken);
    if (request.isEmpty())
        return;
    if (terminating_)
        requestLeft_ = request;
    else
        go({Destination::Kind::Pane, request});
}

void SettingsApplication::showOverview()
{
    if (!isOnlyPane(controller_.currentPath()))
        go({Destination::Kind::Overview, {}});
}

void SettingsApplication::search()
{
    if (isOnlyPane(controller_.currentPath()))
        window_.focusSearch();
    else
        go({Destination::Kind::Search, {}});
}

void SettingsApplication::terminate()
{
    go({Destination::Kind::End, {}});
}

void SettingsApplication::go(const Destination &destination)
{
    if (finished_ || terminating_)
        return;
    terminating_ = destination.kind == Destination::Kind::End;
    // A pane's own question is on screen, or the pane is at work: it must come to its end before it is left.
    if (controller_.isInsidePane() || QApplication::activeModalWidget()) {
        waiting_ = destination;
        return;
    }
    const bool isShown = destination.kind == Destination::Kind::Pane && !controller_.currentPath().isEmpty()
        && paneForRequest(destination.request, installedPanes(folders_)) == controller_.currentPath();
    if (!isShown)
        controller_.leave([this, destination] { arrive(destination); });
}

void SettingsApplication::goOnWhenPossible()
{
    if (!waiting_)
        return;
    // Not within the call that is just returning.
    QTimer::singleShot(0, this, [this] {
        if (!waiting_)
            return;
        const Destination destination = *std::exchange(waiting_, std::nullopt);
        terminating_ = false;
        go(destination);
    });
}

void SettingsApplication::keepPane()
{
    terminating_ = false;
    if (requestLeft_.isEmpty())
        return;
    waiting_ = {Destination::Kind::Pane, std::exchange(requestLeft_, {})};
    goOnWhenPossible();
}

void SettingsApplication::arrive(const Destination &destination)
{
    switch (destination.kind) {
    case Destination::Kind::Overview:
        arriveAtOverview();
        break;
    case Destination::Kind::Search:
        arriveAtOverview();
        window_.focusSearch();
        break;
    case Destination::Kind::Pane:
        openPane(destination.request);
        break;
    case Destination::Kind::End:
        Q_EMIT ending();
        QCoreApplication::exit(0);
        break;
    }
}

void SettingsApplication::arriveAtOverview()
{
    const QList<InstalledPane> panes = installedPanes(folders_);
    const QString path = lastPath_.isEmpty() ? paneForRequest(state_.lastPane(), panes) : lastPath_;
    window_.showOverview(panes, path);
}

void SettingsApplication::openPane(const QString &request)
{
    const QString path = paneForRequest(request, installedPanes(folders_));
    if (path.isEmpty()) {
        window_.showError({{}, {}, request, {}, {}}, {PaneFailure::NotInstalled, {}});
        return;
    }
    const InstalledPane pane = describePane(path);
    window_.setTitle(pane);
    window_.offerOverview(!isOnlyPane(path));
    const PaneFailureReport report = controller_.select(path);
    if (report) {
        window_.showError(pane, report);
        return;
    }
    notices_.refresh();
    lastPath_ = path;
    state_.setLastPane(pane.identifier);
}

void SettingsApplication::terminateAtOnce()
{
    terminating_ = true;
    endsAtOnce_ = true;
    waiting_.reset();
    requestLeft_.clear();
    Q_EMIT ending();
    // Deeper loops are questions and waits of the pane's own: ending them all lets its calls return before it is
    // released.
    if (QThread::currentThread()->loopLevel() <= 1 && !controller_.isInsidePane())
        finish();
    QCoreApplication::exit(0);
}

void SettingsApplication::finish()
{
    if (std::exchange(finished_, true))
        return;
    controller_.leaveAtOnce();
    state_.setWindowSize(window_.sizeToRemember());
    state_.flush();
    window_.allowClosing();
    window_.hide();
    controller_.releaseAll();
}
