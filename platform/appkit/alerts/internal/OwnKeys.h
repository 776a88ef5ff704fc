#pragma once

#include "platform/appkit/KeyRepeats.h"

#include <QObject>
#include <QSet>

class QKeyEvent;

/// Lets only those keys through to a window that are pressed while it has the keyboard. Installed as event filter on
/// the window; a key that was held down when it came up, with all its repeats, is none of its own.
class OwnKeys : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *window, QEvent *event) override;

private:
    bool isOwnPress(const QKeyEvent &press);
    bool isOwnRelease(const QKeyEvent &release);

    QSet<quint32> down_; ///< scan codes
    KeyRepeats repeats_; ///< of keys that are none of ours
};
