#pragma once

#include "updater/core/AppcastItem.h"
#include "updater/core/Download.h"
#include "updater/core/UpdatePlaces.h"
#include "updater/core/UpdateProblem.h"
#include "updater/core/linux/BundleExchange.h"

#include <QFile>
#include <QThread>
#include <memory>

/// Downloads the archive of an update and has it wait, verified and unpacked, beside the bundle (WaitingUpdate.h). What
/// is installed stays as it is. Main thread only.
class UpdatePreparation : public QObject
{
    Q_OBJECT

public:
    /// `feed` is where the item came from.
    UpdatePreparation(const QString &bundlePath, const AppcastItem &item, const QUrl &feed);
    /// Cancels; waits for an unpacking that is under way.
    ~UpdatePreparation() override;

    /// Called once.
    void start();
    /// Ends it; nothing more is said, and nothing of it stays.
    void cancel();

Q_SIGNALS:
    void progressed(qint64 received, qint64 total);
    /// The archive is here; it is being verified and unpacked.
    void downloaded();
    /// Once, never from within start(). With no problem the update waits to be installed.
    void finished(const UpdateProblem &problem);

private:
    void begin();
    UpdateProblem openArchive();
    QString write(const QByteArray &part);
    void takeDownload(const QString &problem);
    void complete();
    void end(const UpdateProblem &problem);

    AppcastItem item_;
    UpdatePlaces places_;
    std::unique_ptr<FolderLock> lock_;
    QFile archive_;
    bool isStorageFull_ = false;
    Download download_;
    std::unique_ptr<QThread> completion_;
};
