#pragma once

#include "updater/core/UpdateProblem.h"

#include <QProcess>

/// Runs a bundle's installer, which puts the update that waits in the bundle's place. Should this process end first, so
/// does the installer, and the bundle is the old or the new one.
class InstallerRun : public QObject
{
    Q_OBJECT

public:
    InstallerRun(const QString &installer, const QString &bundlePath);
    ~InstallerRun() override;

    /// Called once.
    void start();

Q_SIGNALS:
    /// Once, never from within start().
    void finished(const UpdateProblem &problem);

private:
    void takeEnd();
    void takeError(QProcess::ProcessError error);

    QProcess process_;
};
