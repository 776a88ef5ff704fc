#pragma once

#include "platform/appkit/Export.h"

#include <QAbstractButton>
#include <QTimer>
#include <chrono>

/// A field to try the repeat of a held key in. While a key is held in it, or the mouse is, the frame in its picture
/// goes on from window to window at the beat that it is given: backwards with the keys left and up.
class LM_APPKIT KeyRepeatField : public QAbstractButton
{
    Q_OBJECT

public:
    explicit KeyRepeatField(QWidget *parent = nullptr);

    void setRepeats(bool repeats) { repeats_ = repeats; }
    /// From the press to the first repeat, and from each to the next.
    void setBeat(std::chrono::milliseconds delay, std::chrono::milliseconds interval);
    /// The window that has the frame, from 0.
    int place() const { return place_; }
    bool isRepeating() const { return timer_.isActive(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void moved();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void start(int step);
    void stop();
    void move();

    bool repeats_ = true;
    std::chrono::milliseconds delay_{250};
    std::chrono::milliseconds interval_{120};
    QTimer timer_;
    int heldKey_ = 0;
    int step_ = 1;
    int place_ = 0;
};
