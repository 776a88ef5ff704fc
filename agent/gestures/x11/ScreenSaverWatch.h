#pragma once

#include "platform/foundation/system/X11.h"

#include <QObject>
#include <QSocketNotifier>
#include <memory>

/// The X server's screen saver, on a connection of its own that lives as long as somebody listens.
class ScreenSaverWatch : public QObject
{
    Q_OBJECT

public:
    ScreenSaverWatch();

Q_SIGNALS:
    void cameUp();

private:
    void handleEvents();

    const XConnection connection_ = connectToXServer();
    quint8 firstEvent_ = 0;
    std::unique_ptr<QSocketNotifier> notifier_; ///< none where the server has no screen saver
};
