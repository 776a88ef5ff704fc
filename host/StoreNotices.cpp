#include "host/StoreNotices.h"

#include "host/HostState.h"
#include "host/HostText.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/PreferencesTrouble.h"
#include "platform/foundation/processes/LaunchServices.h"

#include <QDir>
#include <QFileInfo>
#include <QThreadPool>
#include <QUrl>

namespace {

using Cause = PreferencesTrouble::Cause;
using Extent = PreferencesTrouble::Extent;

QString headingOf(Extent extent)
{
    switch (extent) {
    case Extent::NotStored:
        return hostText(QStringLiteral("Your changes are not saved"));
    case Extent::Unreadable:
        return hostText(QStringLiteral("Your settings cannot be read"));
    case Extent::NotSecured:
        return hostText(QStringLiteral("Your changes may not last"));
    }
    return {};
}

QString shortened(const QString &path)
{
    const QString home = QDir::homePath() + u'/';
    return path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
}

QString causeOf(const PreferencesTrouble &trouble)
{
    const QString path = shortened(trouble.path);
    const QString folder = shortened(QFileInfo(trouble.path).path());
    switch (trouble.cause) {
    case Cause::FullDisk:
        return hostText(QStringLiteral("The disk is full. Make room on it, then try again."));
    case Cause::ReadOnlyDisk:
        return hostText(QStringLiteral("The disk with the folder “%1” can only be read at the moment.")).arg(folder);
    case Cause::NoPermission:
        return trouble.extent == Extent::Unreadable
            ? hostText(QStringLiteral("You lack the permission to read the file “%1”.")).arg(path)
            : hostText(QStringLiteral("You lack the permission to write in the folder “%1”.")).arg(folder);
    case Cause::Locked:
        return hostText(QStringLiteral("Another program does not let go of the file “%1”.")).arg(path);
    case Cause::TooLarge:
        return hostText(QStringLiteral("The file “%1” would become too large.")).arg(path);
    case Cause::Other:
        break;
    }
    return hostText(QStringLiteral("The file “%1” makes trouble (%2).")).arg(path, trouble.detail);
}

Notice noticeOf(const PreferencesTrouble &trouble)
{
    QString text = causeOf(trouble);
    if (trouble.extent == Extent::Unreadable)
        text += u' ' + hostText(QStringLiteral("What you see here is not what is stored."));
    return {Notice::Kind::Warning, headingOf(trouble.extent), text, hostText(QStringLiteral("Try again")), {}};
}

Notice noticeOfFile(const QString &path)
{
    const QString text =
        hostText(QStringLiteral("It is kept as “%1”. The settings in it began anew with their defaults."));
    return {Notice::Kind::Information, hostText(QStringLiteral("A settings file was damaged")),
        text.arg(QFileInfo(path).fileName()), hostText(QStringLiteral("Show")), hostText(QStringLiteral("Dismiss"))};
}

/// When it was written, since a name may come back with another file.
QString dateOf(const QString &path)
{
    return QFileInfo(path).lastModified().toUTC().toString(Qt::ISODateWithMs);
}

/// What opens it may take its time.
void openFolderOf(const QString &path)
{
    QThreadPool::globalInstance()->start(
        [folder = QUrl::fromLocalFile(QFileInfo(path).path())] { LSOpenCFURLRef(folder); });
}

} // namespace

StoreNotices::StoreNotices(NoticeBar *bar, HostState *state) : bar_(bar), state_(state)
{
    connect(bar_, &NoticeBar::acted, this, &StoreNotices::act);
    connect(bar_, &NoticeBar::dismissed, this, &StoreNotices::dismiss);
    const auto refreshing = [this](const NSNotification &) { refresh(); };
    NSNotificationCenter *const centre = NSNotificationCenter::defaultCenter();
    centre->addObserverSelectorNameObject(this, refreshing, PreferencesTroubleDidChangeNotification);
    centre->addObserverSelectorNameObject(this, refreshing, PreferencesFileWasKeptAsideNotification);
}

void StoreNotices::refresh()
{
    const QList<PreferencesTrouble> troubles = preferencesTroubles();
    isInTrouble_ = !troubles.isEmpty();
    if (isInTrouble_) {
        bar_->tell(noticeOf(troubles.first()));
        return;
    }
    if (fileKeptAside_.isEmpty())
        fileKeptAside_ = fileToTellOf();
    if (fileKeptAside_.isEmpty())
        bar_->tell(std::nullopt);
    else
        tellOfFile();
}

QString StoreNotices::fileToTellOf() const
{
    for (const QString &path : preferencesFilesKeptAside()) {
        if (state_->dateOfFileToldOf(path) != dateOf(path))
            return path;
    }
    return {};
}

void StoreNotices::tellOfFile()
{
    bar_->tell(noticeOfFile(fileKeptAside_));
    if (bar_->isVisible())
        state_->setDateOfFileToldOf(fileKeptAside_, dateOf(fileKeptAside_));
}

void StoreNotices::act()
{
    if (!isInTrouble_)
        openFolderOf(fileKeptAside_);
    else if (retryPreferences())
        refresh();
}

void StoreNotices::dismiss()
{
    fileKeptAside_.clear();
    refresh();
}
