#include "updater/UpdateStatusLabel.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "updater/CheckPermission.h"
#include "updater/UpdateTroubles.h"
#include "updater/core/UpdatePermission.h"
#include "updater/core/UpdateRecord.h"
#include "updater/core/Versions.h"
#include "updater/core/WaitingUpdateRecord.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QLocale>
#include <QShowEvent>

namespace {

QString lastSuccess()
{
    const QDateTime time = UpdateRecord().lastSuccess().toLocalTime();
    const QLocale locale;
    return time.isValid() ? locale.toString(time.date(), QLocale::LongFormat) + QStringLiteral(", ")
            + locale.toString(time.time(), QLocale::ShortFormat)
                          : QString();
}

QString nameOf(const QString &version, const QString &displayVersion)
{
    return displayVersion.isEmpty() ? version : displayVersion;
}

} // namespace

UpdateStatusLabel::UpdateStatusLabel(QWidget *parent, const NSBundle *bundle)
    : StyledLabel(parent), bundle_(bundle), places_(QFileInfo(bundle->bundlePath()).canonicalFilePath())
{
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        this, [this](const NSNotification &) { tell(); }, NSUserDefaultsDidChangeNotification, {});
}

UpdateStatusLabel::~UpdateStatusLabel()
{
    NSNotificationCenter::defaultCenter()->removeObserver(this);
}

void UpdateStatusLabel::showEvent(QShowEvent *event)
{
    StyledLabel::showEvent(event);
    if (event->spontaneous())
        return;
    if (status_ == WaitingVersion) {
        watcher_ = std::make_unique<QFileSystemWatcher>();
        connect(watcher_.get(), &QFileSystemWatcher::directoryChanged, this, &UpdateStatusLabel::follow);
    }
    follow();
}

void UpdateStatusLabel::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        watcher_.reset();
    StyledLabel::hideEvent(event);
}

void UpdateStatusLabel::follow()
{
    // The folder of what waits comes and goes, and its record is written last of all.
    if (watcher_) {
        for (const QString &folder : {places_.folder(), places_.waiting()}) {
            if (!watcher_->directories().contains(folder) && QFileInfo::exists(folder))
                watcher_->addPath(folder);
        }
    }
    tell();
}

void UpdateStatusLabel::tell()
{
    if (!isVisible())
        return;
    const QString now = statement();
    if (now != text())
        setText(now);
}

QString UpdateStatusLabel::statement() const
{
    if (status_ == LostFeed)
        return UpdateRecord().isFeedLost() ? format_ : otherwise_;
    if (status_ == WaitingVersion)
        return stateOfWaiting();
    if (status_ == AutomaticChecks) {
        const UpdateProblem problem = problemOfChecking(bundle_);
        return problem.isNone() ? format_ : troubleWithChecks(bundle_, problem.kind);
    }
    const QString told = lastSuccess();
    return told.isEmpty() ? otherwise_ : format_.arg(told);
}

QString UpdateStatusLabel::stateOfWaiting() const
{
    const std::optional<ExpectedUpdate> waiting = waitingUpdate(places_);
    const std::optional<FailedInstallation> failed = UpdateRecord().failedInstallation();
    if (waiting) {
        const bool hasFailed = failed && failed->version == waiting->version;
        const UpdateProblem refusal = problemOfUpdating(places_.bundle());
        const UpdateProblem problem = refusal.isNone() && hasFailed ? failed->problem : refusal;
        const QString name = nameOf(waiting->version, waiting->displayVersion);
        return problem.isNone() ? format_.arg(name) : troubleWithInstallation(bundle_, name, problem.kind);
    }
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(places_.bundle());
    const QString installed = info.value(QStringLiteral("CFBundleVersion")).toString();
    // What was installed by other means is no trouble any more.
    if (!failed || !isNewer(failed->version, installed))
        return otherwise_;
    const UpdateProblem::Kind kind =
        isForGood(failed->problem.kind) ? failed->problem.kind : UpdateProblem::Kind::Archive;
    return troubleWithInstallation(bundle_, nameOf(failed->version, failed->displayVersion), kind);
}
