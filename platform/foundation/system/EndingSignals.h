#pragma once

#include "platform/foundation/Export.h"

#include <QObject>

/// Turns the signals that end a program (SIGTERM, SIGINT, SIGHUP) into one emitted in the event loop. One object per
/// process.
class LM_FOUNDATION EndingSignals : public QObject
{
    Q_OBJECT

public:
    EndingSignals();
    ~EndingSignals() override;

Q_SIGNALS:
    void received();
};
