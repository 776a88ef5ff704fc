#include "platform/appkit/controls/NSSwitch.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr QSizeF TrackSize(44, 24);
constexpr qreal ringGap = 1;
constexpr qreal ringWidth = 2;
constexpr qreal knobInset = 3;

} // namespace

NSSwitch::NSSwitch(QWidget *parent) : QCheckBox(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize NSSwitch::sizeHint() const
{
    const qreal margin = 2 * (ringGap + ringWidth);
    return (TrackSize + QSizeF(margin, margin)).toSize();
}

bool NSSwitch::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

QRectF NSSwitch::trackRect() const
{
    QRectF track(QPointF(), TrackSize);
    track.moveCenter(QRectF(rect()).center());
    return track;
}

QPointF NSSwitch::knobCenter(const QRectF &track) const
{
    if (checkState() == Qt::PartiallyChecked)
        return track.center();
    const bool atRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const qreal radius = track.height() / 2;
    return {atRight ? track.right() - radius : track.left() + radius, track.center().y()};
}

void NSSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track = trackRect();
    const QColor off = mixed(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.5f);
    const bool isOn = checkState() == Qt::Checked;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isOn ? palette().color(QPalette::Highlight) : off);
    painter.drawRoundedRect(track, track.height() / 2, track.height() / 2);

    const qreal knobRadius = track.height() / 2 - knobInset;
    painter.setBrush(isOn ? palette().color(QPalette::HighlightedText) : palette().color(QPalette::Window));
    painter.drawEllipse(knobCenter(track), knobRadius, knobRadius);

    if (hasFocus()) {
        const QRectF ring = track.adjusted(-ringGap, -ringGap, ringGap, ringGap);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), ringWidth));
        painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
    }
}
