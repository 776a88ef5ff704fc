#pragma once

#include "agent/actions/WindowPixels.h"

#include <QProcess>

/// Stores pixels as a picture, by a program of its own.
class PictureStoring : public QObject
{
    Q_OBJECT

public:
    /// The program that does it lies at this path.
    explicit PictureStoring(const QString &program = builtInProgram());
    /// What has not been stored by then is not there.
    ~PictureStoring() override;

    /// stored() or failed() follows. The name is without an extension; where it is taken, a number follows it.
    void begin(WindowPixels pixels, const QString &folder, const QString &name);

    /// The one in this agent's bundle.
    static QString builtInProgram();

Q_SIGNALS:
    void stored(const QString &path);
    /// An errno; 0 where the program did not end well.
    void failed(int error);

private:
    void handleEnd(int status, QProcess::ExitStatus exit);

    const QString program_;
    WindowPixels pixels_;
    QProcess process_;
};
