#pragma once

#include "platform/appkit/Export.h"

#include <QProgressBar>

/// Shows that something is going on; hidden, with its place kept, until it is started.
class LM_APPKIT NSProgressIndicator : public QProgressBar
{
    Q_OBJECT

public:
    explicit NSProgressIndicator(QWidget *parent = nullptr);

    void startAnimation();
};
