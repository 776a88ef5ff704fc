#pragma once

#include "platform/appkit/controls/NSSwitch.h"

/// A check box as a row of a card: its text at the start, which may take several lines, a switch at the end. A click
/// anywhere on it switches it.
class LM_APPKIT SwitchRow : public NSSwitch
{
    Q_OBJECT

public:
    explicit SwitchRow(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    QRectF trackRect() const override;

private:
    int widthOfSwitch() const { return NSSwitch::sizeHint().width(); }
    int textHeight(int width) const;
};
