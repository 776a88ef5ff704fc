#include "updater/UpdateStatusLabel.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "updater/core/UpdateRecord.h"
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

QString waitingVersion(const UpdatePlaces &places)
{
    const std::optional<ExpectedUpdate> update = waitingUpdate(places);
    if (!update)
        return {};
    return update->displayVersion.isEmpty() ? update->version : update->displayVersion;
}

} // namespace

UpdateStatusLabel::UpdateStatusLabel(QWidget *parent, const NSBundle *bundle)
    : StyledLabel(parent), places_(QFileInfo(bundle->bundlePath()).canonicalFilePath())
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
    const QString told = status_ == LastSuccess ? lastSuccess() : waitingVersion(places_);
    return told.isEmpty() ? otherwise_ : format_.arg(told);
}
