#include "platform/appkit/NSColorWell.h"

#include "platform/appkit/SystemColors.h"

#include <QPainter>

NSColorWell::NSColorWell(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, this, &NSColorWell::activate);
}

void NSColorWell::setColor(const NSColorRef &color)
{
    color_ = color;
    update();
}

QColor NSColorWell::initialColor() const
{
    return liveColor(color_);
}

void NSColorWell::setInitialColor(const QColor &color)
{
    setColor(calibratedColor(color));
}

QSize NSColorWell::sizeHint() const
{
    return {48, 24};
}

void NSColorWell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), liveColor(color_));
}

void NSColorWell::activate() { }
