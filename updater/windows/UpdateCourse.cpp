#include "updater/windows/UpdateCourse.h"

#include "platform/appkit/Relaunch.h"
#include "platform/appkit/web/NSWorkspace.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "updater/InstallationAtEnd.h"
#include "updater/core/Installation.h"
#include "updater/core/InstalledBundle.h"
#include "updater/core/ReleaseNotes.h"
#include "updater/core/UpdatePermission.h"
#include "updater/core/UpdateRecord.h"
#include "updater/core/Versions.h"
#include "updater/core/WaitingUpdate.h"

#include <QHash>
#include <QIcon>

namespace {

using Kind = UpdateProblem::Kind;

/// What has told its end is still on the stack: it goes a moment later.
template <typename T>
void releaseLater(std::unique_ptr<T> &object)
{
    if (object)
        object.release()->deleteLater();
}

QIcon iconOf(const NSBundle *bundle)
{
    const QString name = bundle->infoDictionary().value(QStringLiteral("NSPrefPaneIconFile")).toString();
    return QIcon(bundle->pathForResourceOfType(name, {}));
}

QString displayVersionOnDisk(const NSBundle *bundle)
{
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(bundle->bundlePath());
    const QString version = info.value(QStringLiteral("CFBundleVersion")).toString();
    return info.value(QStringLiteral("CFBundleShortVersionString"), version).toString();
}

} // namespace

UpdateCourse::UpdateCourse(NSBundle *bundle) : bundle_(bundle), pages_(bundle) { }

QString UpdateCourse::bundlePath() const
{
    return bundle_->bundlePath();
}

UpdatePlaces UpdateCourse::places() const
{
    return UpdatePlaces(InstalledBundle(bundlePath()).path);
}

UpdateWindow &UpdateCourse::window()
{
    if (!window_) {
        window_ = std::make_unique<UpdateWindow>(pages_.windowTitle(), iconOf(bundle_));
        connect(window_.get(), &UpdateWindow::pressed, this,
            [this](const QString &button) { runAtBoundary("update window", [&] { press(button); }); });
        connect(window_.get(), &UpdateWindow::linkChosen, this, &UpdateCourse::openInBrowser);
    }
    return *window_;
}

void UpdateCourse::checkForUser(const QUrl &feed)
{
    if (isOpen()) {
        window_->comeToFront();
        return;
    }
    const UpdateProblem problem = refusal();
    window().setPage(problem.isNone() ? pages_.checking() : pages_.failure(problem));
    window().comeToFront();
    if (problem.isNone())
        check(feed, Asker::User);
}

void UpdateCourse::checkBySchedule(const QUrl &feed)
{
    if (!check_ && !isOpen() && refusal().isNone())
        check(feed, Asker::Schedule);
}

void UpdateCourse::stopScheduledCheck()
{
    if (asker_ == Asker::Schedule)
        check_.reset();
}

/// Why nothing needs to be asked of a server.
UpdateProblem UpdateCourse::refusal() const
{
    if (InstalledBundle(bundlePath()).publicKey.isEmpty())
        return {Kind::NoKey, QStringLiteral("SUPublicEDKey of the bundle is no key")};
    return problemOfUpdating(bundlePath());
}

void UpdateCourse::check(const QUrl &feed, Asker asker)
{
    feed_ = feed;
    asker_ = asker;
    check_ = std::make_unique<UpdateCheck>(bundlePath(), feed, asker == Asker::User);
    connect(check_.get(), &UpdateCheck::finished, this, &UpdateCourse::takeResult);
    check_->start();
}

void UpdateCourse::takeResult(const UpdateCheckResult &result)
{
    releaseLater(check_);
    if (result.problem.isNone() && result.choice.item)
        offer(*result.choice.item);
    else if (!result.problem.isNone())
        answer(pages_.failure(result.problem));
    else
        answer(pages_.upToDate(displayVersionOnDisk(bundle_)));
}

/// Who has not asked is not told that there is nothing.
void UpdateCourse::answer(const UpdatePage &page)
{
    if (asker_ == Asker::User)
        window().setPage(page);
}

void UpdateCourse::offer(const AppcastItem &item)
{
    item_ = item;
    const std::optional<ExpectedUpdate> waiting = waitingUpdate(places());
    if (waiting && waiting->version == item.version) {
        answer(pages_.ready(item.displayVersion));
        return;
    }
    window().setPage(pages_.offer(item, InstalledBundle(bundlePath()).version));
    if (asker_ == Asker::Schedule)
        window().appearQuietly();
    loadNotes();
}

void UpdateCourse::loadNotes()
{
    if (!item_.releaseNotes.isValid()) {
        window().setNotes(safeReleaseNotes(item_.description));
        return;
    }
    notesBytes_.clear();
    const DownloadRequest request{.address = item_.releaseNotes, .feed = feed_, .largestSize = largestReleaseNotes};
    notes_ = std::make_unique<Download>(request, [this](const QByteArray &part) {
        notesBytes_ += part;
        return QString();
    });
    connect(notes_.get(), &Download::finished, this, &UpdateCourse::takeNotes);
    notes_->start();
}

void UpdateCourse::takeNotes(const QString &problem)
{
    releaseLater(notes_);
    window().setNotes(problem.isEmpty() ? safeReleaseNotes(QString::fromUtf8(notesBytes_)) : pages_.notesAreMissing());
}

void UpdateCourse::press(const QString &button)
{
    static const QHash<QString, void (UpdateCourse::*)()> operations{
        {pressCancel, &UpdateCourse::cancel},
        {pressSkip, &UpdateCourse::skip},
        {pressLater, &UpdateCourse::close},
        {pressClose, &UpdateCourse::close},
        {pressOpenPage, &UpdateCourse::openPage},
        {pressInstall, &UpdateCourse::install},
        {pressRestart, &UpdateCourse::installAndRestart},
    };
    if (const auto operation = operations.value(button))
        (this->*operation)();
}

void UpdateCourse::cancel()
{
    check_.reset();
    preparation_.reset();
    close();
}

void UpdateCourse::skip()
{
    UpdateRecord().skip(item_.version);
    close();
}

void UpdateCourse::close()
{
    notes_.reset();
    window().hide();
}

void UpdateCourse::openPage()
{
    if (openInBrowser(item_.link))
        close();
}

bool UpdateCourse::openInBrowser(const QUrl &address)
{
    const bool isOpened = NSWorkspace::sharedWorkspace()->openURL(address);
    if (!isOpened)
        window().tell(pages_.pageIsNotOpened(address));
    return isOpened;
}

void UpdateCourse::install()
{
    notes_.reset();
    window().setPage(pages_.download(item_.displayVersion));
    preparation_ = std::make_unique<UpdatePreparation>(bundlePath(), item_, feed_);
    connect(preparation_.get(), &UpdatePreparation::progressed, this, &UpdateCourse::takeProgress);
    connect(preparation_.get(), &UpdatePreparation::downloaded, this,
        [this] { window().setPage(pages_.preparing(item_.displayVersion)); });
    connect(preparation_.get(), &UpdatePreparation::finished, this, &UpdateCourse::takePreparation);
    preparation_->start();
}

void UpdateCourse::takeProgress(qint64 received, qint64 total)
{
    window().setProgress(received, total, pages_.progressText(received, total));
}

void UpdateCourse::takePreparation(const UpdateProblem &problem)
{
    releaseLater(preparation_);
    if (!problem.isNone()) {
        window().setPage(pages_.failure(problem));
        return;
    }
    UpdateRecord().forgetFailedInstallation();
    // The user has agreed to it: whatever the next answer is, and also without one, it is installed.
    if (installWhenThisEnds(bundle_))
        window().setPage(pages_.ready(item_.displayVersion));
    else
        tellThatItOnlyWaits();
}

/// The next start of the settings tries to install it.
void UpdateCourse::tellThatItOnlyWaits()
{
    const UpdateProblem problem{Kind::Exchange, QStringLiteral("the installer cannot be started")};
    UpdateRecord().noteFailedInstallation({item_.version, item_.displayVersion, problem});
    window().setPage(pages_.failure(problem));
}

/// Also by another process, which may have installed a higher one.
bool UpdateCourse::isInstalled() const
{
    return compareVersions(InstalledBundle(bundlePath()).version, item_.version) >= 0;
}

/// The bundle is exchanged once the settings have ended, by the installer that waits for that or by the next start: a
/// pane that does not let itself be left runs on with the bundle that its code came from.
void UpdateCourse::installAndRestart()
{
    if (isInstalled()) {
        relaunch(pages_.installed(item_.displayVersion));
        return;
    }
    const UpdateProblem problem = verifyWaitingUpdate(bundlePath());
    if (problem.isNone())
        relaunch(pages_.installedAtEnd(item_.displayVersion));
    else
        window().setPage(pages_.failure(problem));
}

void UpdateCourse::relaunch(const UpdatePage &whereTheSettingsStay)
{
    const QString launcher = bundle_->pathForResourceOfType(QStringLiteral("launcher"), {});
    // No launcher is there, or the user keeps them open.
    window().setPage(whereTheSettingsStay);
    if (!launcher.isEmpty())
        runAtBoundary("restart after an update", [&] { relaunchWithPane(bundlePath(), launcher, LauncherLog::Quiet); });
}
