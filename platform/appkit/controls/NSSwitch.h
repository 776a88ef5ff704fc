#pragma once

#include "platform/appkit/Export.h"

#include <QCheckBox>

/// An on/off switch: a check box in all but its looks. It shows no text of its own; its text only names it and gives it
/// a mnemonic.
class LM_APPKIT NSSwitch : public QCheckBox
{
    Q_OBJECT

public:
    explicit NSSwitch(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;
    /// Where the switch itself is.
    virtual QRectF trackRect() const;

private:
    QPointF knobCenter(const QRectF &track) const;
};
