#pragma once

#include "platform/appkit/Export.h"
#include "platform/foundation/colors/NSColor.h"

#include <QWidget>

/// A drawn screen with windows, one of which bears the frame of the selection in its colour.
class LM_APPKIT WindowsPicture : public QWidget
{
    Q_OBJECT

public:
    explicit WindowsPicture(QWidget *parent = nullptr);

    void setFrameColor(const NSColorRef &color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintWindow(QPainter &painter, const QRectF &place) const;

    NSColorRef frameColor_;
};
