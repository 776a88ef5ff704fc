#include "platform/appkit/controls/WindowsPicture.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/colors/SystemColors.h"

#include <QPainter>

namespace {

// Drawn on a screen of this size, and scaled from there.
constexpr QSizeF drawnScreen(176, 112);
constexpr qreal screenRadius = 8;
constexpr qreal windowRadius = 4;
constexpr qreal frameWidth = 4;
constexpr qreal titleHeight = 9;
constexpr QRectF behind(62, 12, 96, 62);
constexpr QRectF left(14, 34, 66, 60);
constexpr QRectF selected(92, 48, 68, 50);

} // namespace

WindowsPicture::WindowsPicture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void WindowsPicture::setFrameColor(const NSColorRef &color)
{
    frameColor_ = color;
    update();
}

QSize WindowsPicture::sizeHint() const
{
    return drawnScreen.toSize();
}

void WindowsPicture::paintWindow(QPainter &painter, const QRectF &place) const
{
    const QColor ground = palette().color(QPalette::Base);
    const QColor line = mixed(ground, palette().color(QPalette::WindowText), 0.4f);
    painter.setPen(QPen(line, 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(place, windowRadius, windowRadius);
    painter.drawLine(place.topLeft() + QPointF(0, titleHeight), place.topRight() + QPointF(0, titleHeight));
    painter.setPen(Qt::NoPen);
    painter.setBrush(line);
    painter.drawEllipse(place.topLeft() + QPointF(6, titleHeight / 2), 1.6, 1.6);
    painter.setBrush(mixed(ground, palette().color(QPalette::WindowText), 0.16f));
    for (qreal y = place.top() + titleHeight + 6; y + 3 < place.bottom() - 3; y += 8)
        painter.drawRoundedRect(QRectF(place.left() + 6, y, place.width() - 12, 3), 1.5, 1.5);
}

void WindowsPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / drawnScreen.width(), height() / drawnScreen.height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.1f));
    painter.drawRoundedRect(QRectF(QPointF(), drawnScreen), screenRadius, screenRadius);
    for (const QRectF &place : {behind, left, selected})
        paintWindow(painter, place);
    QColor frame = frameColor_ ? liveColor(frameColor_) : palette().color(QPalette::Highlight);
    frame.setAlphaF(std::max(0.6f, float(frame.alphaF())));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(frame, frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    painter.drawRoundedRect(selected, windowRadius, windowRadius);
}
