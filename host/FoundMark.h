#pragma once

#include <QWidget>

/// A frame around a control that a search has found. It goes by itself after a moment.
class FoundMark : public QWidget
{
    Q_OBJECT

public:
    explicit FoundMark(QWidget *control);

protected:
    void paintEvent(QPaintEvent *event) override;
};
