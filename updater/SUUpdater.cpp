#include "updater/SUUpdater.h"

#include "platform/appkit/alerts/NSAlert.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/system/NSLog.h"
#include "updater/CheckPermission.h"
#include "updater/InstallationAtEnd.h"
#include "updater/UpdateEngine.h"
#include "updater/UpdateText.h"
#include "updater/core/UpdatePermission.h"
#include "updater/core/UpdatePlaces.h"
#include "updater/core/UpdateSchedule.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <map>

namespace {

constexpr double oneDay = 24 * 60 * 60;

using Updaters = std::map<NSBundle *, std::unique_ptr<SUUpdater>>;

/// They outlive every pane, but not the application object, whose windows they have.
Updaters &updaters()
{
    static Updaters *all = nullptr;
    if (!all) {
        all = new Updaters;
        qAddPostRoutine([] { delete std::exchange(all, nullptr); });
    }
    return *all;
}

void sayThatNothingCanBeChecked(const NSBundle *bundle)
{
    auto alert = std::make_unique<NSAlert>();
    alert->setMessageText(updateText(bundle, QStringLiteral("Lumaroo cannot look for updates now")));
    alert->setInformativeText(updateText(bundle,
        QStringLiteral("A part of it is missing, or was just replaced by another version. Close the settings, open "
                       "them again and try once more. If that does not help, install Lumaroo again.")));
    NSAlert::beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(
        std::move(alert), nullptr, nullptr, [](NSAlert *, int, const QString &) {}, {});
}

} // namespace

SUUpdater *SUUpdater::updaterForBundle(NSBundle *bundle)
{
    std::unique_ptr<SUUpdater> &updater = updaters()[bundle];
    if (!updater)
        updater.reset(new SUUpdater(bundle));
    return updater.get();
}

SUUpdater::SUUpdater(NSBundle *bundle)
    : bundle_(bundle), interval_(oneDay), schedule_(std::make_unique<UpdateSchedule>())
{
    setFeedURL(bundle->infoDictionary().value(QStringLiteral("SUFeedURL")).toString());
    connect(schedule_.get(), &UpdateSchedule::due, this, &SUUpdater::checkBySchedule);
    finishEarlierUpdates();
}

SUUpdater::~SUUpdater() = default;

/// An update that waits has done so since the settings, and what was to install it, were killed together.
void SUUpdater::finishEarlierUpdates()
{
    const UpdatePlaces places(QFileInfo(bundle_->bundlePath()).canonicalFilePath());
    const bool isAnythingLeft = QFileInfo::exists(places.waiting()) || !places.aside().isEmpty();
    if (isAnythingLeft && problemOfUpdating(bundle_->bundlePath()).isNone())
        installWhenThisEnds(bundle_);
}

void SUUpdater::setAutomaticallyChecksForUpdates(bool checks)
{
    checksAutomatically_ = checks;
    if (!checks && engine_)
        engine_->stopScheduledCheck();
    resetUpdateCycle();
}

void SUUpdater::resetUpdateCycle()
{
    if (checksAutomatically_ && problemOfChecking(bundle_).isNone())
        schedule_->start(std::chrono::duration<double>(interval_));
    else
        schedule_->stop();
}

QUrl SUUpdater::feedAddress() const
{
    return QUrl(feed_, QUrl::StrictMode);
}

void SUUpdater::checkBySchedule()
{
    if (UpdateEngine *ready = engine())
        ready->checkBySchedule(feedAddress());
}

void SUUpdater::checkForUpdates(QObject *sender)
{
    if (UpdateEngine *ready = engine())
        ready->checkForUser(feedAddress());
    else
        sayThatNothingCanBeChecked(bundle_);
}

UpdateEngine *SUUpdater::engine()
{
    if (engine_)
        return engine_.get();
    QString error;
    engine_ = makeUpdateEngine(bundle_, &error);
    if (!engine_ && !std::exchange(isEngineMissed_, true))
        NSLog(QStringLiteral("lumaroo: updates: cannot check: %1").arg(error));
    return engine_.get();
}
