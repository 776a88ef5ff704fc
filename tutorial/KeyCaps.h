#pragma once

#include "tutorial/GuidePage.h"

#include <QWidget>

/// Keys as they look on a keyboard, in a row.
class KeyCaps : public QWidget
{
    Q_OBJECT

public:
    explicit KeyCaps(QWidget *parent);

    void setCaps(const QList<GuidePage::Cap> &caps);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int widthOf(const GuidePage::Cap &cap) const;
    void paintKey(QPainter &painter, const QRectF &place) const;

    QList<GuidePage::Cap> caps_;
};
