#pragma once

#include <QWidget>

/// How far one has come: a dot for each step.
class ProgressDots : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressDots(QWidget *parent) : QWidget(parent) { }

    /// `number` counts from 1.
    void setProgress(int number, int count);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int number_ = 0;
    int count_ = 0;
};
