#include "platform/appkit/controls/HeldKeyMarker.h"

#include <QPainter>
#include <QStyle>

HeldKeyMarker::HeldKeyMarker(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void HeldKeyMarker::setReason(const QString &reason)
{
    setAccessibleName(reason);
    setVisible(!reason.isEmpty());
    if (parentWidget())
        description_.set(parentWidget()->findChild<QWidget *>(field_), reason);
}

QSize HeldKeyMarker::sizeHint() const
{
    const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    return {extent, extent};
}

/// The sign that forbids entry, in the window's colours, so that it stands out from whatever ground the field has.
void HeldKeyMarker::paintEvent(QPaintEvent *)
{
    const double extent = std::min(width(), height());
    const double rim = extent / 12;
    const double bar = extent / 6;
    const QPointF middle = QRectF(rect()).center();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Window), rim));
    painter.setBrush(palette().color(QPalette::WindowText));
    painter.drawEllipse(middle, (extent - rim) / 2, (extent - rim) / 2);
    painter.fillRect(
        QRectF(middle.x() - extent / 4, middle.y() - bar / 2, extent / 2, bar), palette().color(QPalette::Window));
}
