#pragma once

#include "agent/windows/WindowDescription.h"

#include <QObject>
#include <memory>

class PictureThread;

/// One picture of a window, from its pixels to the file.
class Screenshot : public QObject
{
    Q_OBJECT

public:
    /// A window that is on screen. taken() or failed() follows, never within this call.
    explicit Screenshot(const WindowDescription &window);
    ~Screenshot() override;

    const WindowDescription &window() const { return window_; }

Q_SIGNALS:
    void taken(const QString &path);
    /// A whole sentence.
    void failed(const QString &sentence);

private:
    const WindowDescription window_;
    const std::unique_ptr<PictureThread> thread_;
};

/// Why there can be no picture of a window from the outset, as a whole sentence; empty where there can.
QString reasonForNoPicture(const WindowDescription &window);
