#pragma once

#include "agent/actions/WindowPixels.h"
#include "agent/windows/WindowDescription.h"

#include <QThread>
#include <memory>

class PictureStoring;

/// What is to be stored, and how.
struct PictureOrder
{
    WindowDescription window;
    QString program; ///< that stores it
    QString folder;
    QString name; ///< without its extension
};

/// Stores the picture of a window in a thread: server and system may take their time, and the keys do not wait for
/// that.
class PictureThread : public QThread
{
    Q_OBJECT

public:
    /// To be started; one of the last three signals follows.
    explicit PictureThread(PictureOrder order) : order_(std::move(order)) { }
    /// Ends it; what has not been stored by then is not there.
    ~PictureThread() override;

Q_SIGNALS:
    // Each comes from the thread.
    /// The window's program has had its time to draw.
    void drawn();
    void stored(const QString &path);
    void notCopied(PictureFailure failure);
    /// As PictureStoring tells it.
    void notStored(int error);

private:
    void run() override;

    const PictureOrder order_;
};
