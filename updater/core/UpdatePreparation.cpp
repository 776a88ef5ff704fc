#include "updater/core/UpdatePreparation.h"

#include "platform/foundation/system/NSLog.h"
#include "updater/core/Appcast.h"
#include "updater/core/InstalledBundle.h"
#include "updater/core/UpdatePermission.h"
#include "updater/core/WaitingUpdate.h"

namespace {

using Kind = UpdateProblem::Kind;

DownloadRequest requestFor(const AppcastItem &item, const QUrl &feed)
{
    return {.address = item.archive,
        .feed = feed,
        .largestSize = std::min(item.length, largestUpdateArchive),
        .exactSize = item.length,
        .longestSilence = std::chrono::minutes(1),
        .longestTime = std::chrono::hours(2)};
}

} // namespace

UpdatePreparation::UpdatePreparation(const QString &bundlePath, const AppcastItem &item, const QUrl &feed)
    : item_(item), places_(InstalledBundle(bundlePath).path),
      download_(requestFor(item, feed), [this](const QByteArray &part) { return write(part); })
{
    connect(&download_, &Download::progressed, this, &UpdatePreparation::progressed);
    connect(&download_, &Download::finished, this, &UpdatePreparation::takeDownload);
}

UpdatePreparation::~UpdatePreparation()
{
    cancel();
}

void UpdatePreparation::start()
{
    QTimer::singleShot(0, this, &UpdatePreparation::begin);
}

void UpdatePreparation::cancel()
{
    download_.cancel();
    if (completion_) {
        completion_->disconnect(this);
        completion_->wait();
    }
    if (lock_)
        removeWaitingUpdate(places_);
    lock_.reset();
}

void UpdatePreparation::begin()
{
    UpdateProblem problem = problemOfUpdating(places_.bundle());
    if (problem.isNone())
        problem = openArchive();
    if (problem.isNone())
        download_.start();
    else
        end(problem);
}

UpdateProblem UpdatePreparation::openArchive()
{
    auto lock = std::make_unique<FolderLock>(places_.folder());
    if (!*lock)
        return {Kind::Busy, QStringLiteral("another process is about to update %1").arg(places_.bundle())};
    lock_ = std::move(lock);
    const UpdateProblem problem = beginWaitingUpdate(places_);
    if (!problem.isNone())
        return problem;
    archive_.setFileName(places_.archive());
    const bool isOpen = archive_.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
        QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return isOpen ? UpdateProblem{} : UpdateProblem{Kind::Storage, archive_.errorString()};
}

/// A write to a disk that is about to be full is short, and no error yet.
QString UpdatePreparation::write(const QByteArray &part)
{
    qint64 written = 0;
    while (written < part.size()) {
        const qint64 count = archive_.write(part.constData() + written, part.size() - written);
        isStorageFull_ = count <= 0;
        if (isStorageFull_)
            return archive_.errorString();
        written += count;
    }
    return {};
}

void UpdatePreparation::takeDownload(const QString &problem)
{
    archive_.close();
    if (problem.isEmpty())
        complete();
    else
        end({isStorageFull_ ? Kind::Storage : Kind::Download, problem});
}

void UpdatePreparation::complete()
{
    const ExpectedUpdate expected{
        item_.version, item_.displayVersion, item_.signature, item_.length, LUMAROO_PLATFORM_VERSION};
    auto result = std::make_shared<UpdateProblem>();
    completion_.reset(
        QThread::create([result, places = places_, expected] { *result = completeWaitingUpdate(places, expected); }));
    connect(completion_.get(), &QThread::finished, this, [this, result] { end(*result); });
    Q_EMIT downloaded();
    completion_->start();
}

void UpdatePreparation::end(const UpdateProblem &problem)
{
    if (!problem.isNone()) {
        NSLog(QStringLiteral("lumaroo: updates: version %1 is not prepared: %2").arg(item_.version, problem.detail));
        if (lock_)
            removeWaitingUpdate(places_);
    }
    lock_.reset();
    Q_EMIT finished(problem);
}
