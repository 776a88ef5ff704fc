#pragma once

#include "host/PaneFailure.h"

#include <QWidget>

class QLabel;

/// Stands in a pane's place and says why it cannot be shown and what to do.
class ErrorPage : public QWidget
{
    Q_OBJECT

public:
    explicit ErrorPage(QWidget *parent = nullptr);

    void setReport(const QString &paneName, const PaneFailureReport &report);

private:
    QLabel *heading_;
    QLabel *explanation_;
    QLabel *detail_;
};
