#pragma once

#include "updater/core/Download.h"
#include "updater/core/UpdateChoice.h"
#include "updater/core/UpdateProblem.h"

#include <memory>

struct UpdateCheckResult
{
    UpdateProblem problem;
    UpdateChoice choice; ///< where there is no problem
};

/// Fetches a bundle's feed, reads it, chooses, and keeps the record of checks. Main thread only.
class UpdateCheck : public QObject
{
    Q_OBJECT

public:
    /// `feed` need not be the one that the bundle names.
    UpdateCheck(const QString &bundlePath, const QUrl &feed, bool isAskedByUser);

    /// Called once.
    void start();
    /// Ends it; nothing more is said, and nothing is noted.
    void cancel() { download_.cancel(); }

Q_SIGNALS:
    /// Once, never from within start().
    void finished(const UpdateCheckResult &result);

private:
    void takeEnd(const QString &problem);
    void fail(const QString &problem);
    UpdateCircumstances circumstances() const;

    QString bundle_;
    QUrl feed_;
    bool isAskedByUser_;
    QByteArray bytes_;
    Download download_;
};
