#include "platform/appkit/controls/internal/PageSymbols.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace {

// Each symbol is drawn on a square of 20 units.
constexpr qreal side = 20;
constexpr qreal lineWidth = 1.6;

using Drawing = void (*)(QPainterPath &);

/// Two windows, one before the other.
void addWindows(QPainterPath &path)
{
    path.moveTo(6.5, 5.5);
    path.lineTo(6.5, 4.5);
    path.arcTo(6.5, 2.5, 4, 4, 180, -90);
    path.lineTo(15.5, 2.5);
    path.arcTo(13.5, 2.5, 4, 4, 90, -90);
    path.lineTo(17.5, 10.5);
    path.arcTo(13.5, 8.5, 4, 4, 0, -90);
    path.addRoundedRect(2.5, 7.5, 11, 10, 2, 2);
    path.moveTo(2.5, 10.8);
    path.lineTo(13.5, 10.8);
}

void addKeyboard(QPainterPath &path)
{
    path.addRoundedRect(1.5, 4.5, 17, 11, 2, 2);
    for (const qreal x : {5.0, 8.3, 11.6, 15.0})
        path.addEllipse(QPointF(x, 8.2), 0.4, 0.4);
    path.moveTo(6, 12.2);
    path.lineTo(14, 12.2);
}

/// Three sliders.
void addSliders(QPainterPath &path)
{
    const QPointF knobs[] = {{12.5, 4.5}, {6.5, 10}, {13.5, 15.5}};
    for (const QPointF &knob : knobs) {
        path.moveTo(2.5, knob.y());
        path.lineTo(knob.x() - 2, knob.y());
        path.addEllipse(knob, 2, 2);
        path.moveTo(knob.x() + 2, knob.y());
        path.lineTo(17.5, knob.y());
    }
}

/// An arrow down into a tray.
void addDownload(QPainterPath &path)
{
    path.moveTo(10, 2.5);
    path.lineTo(10, 12.5);
    path.moveTo(5.8, 8.6);
    path.lineTo(10, 12.8);
    path.lineTo(14.2, 8.6);
    path.moveTo(2.8, 13);
    path.lineTo(2.8, 17.2);
    path.lineTo(17.2, 17.2);
    path.lineTo(17.2, 13);
}

void addQuestion(QPainterPath &path)
{
    path.addEllipse(QPointF(10, 10), 7.7, 7.7);
    path.moveTo(7.6, 8);
    path.arcTo(7.6, 5.4, 4.9, 4.9, 180, -220);
    path.quadTo(10, 10.6, 10, 11.9);
    path.addEllipse(QPointF(10, 14.2), 0.4, 0.4);
}

void addInformation(QPainterPath &path)
{
    path.addEllipse(QPointF(10, 10), 7.7, 7.7);
    path.moveTo(10, 9);
    path.lineTo(10, 14);
    path.addEllipse(QPointF(10, 6.2), 0.4, 0.4);
}

void addRing(QPainterPath &path)
{
    path.addEllipse(QPointF(10, 10), 7.7, 7.7);
}

} // namespace

void paintPageSymbol(QPainter &painter, const QString &page, const QRectF &place, const QColor &color)
{
    static const QHash<QString, Drawing> drawings{{QStringLiteral("general"), &addWindows},
        {QStringLiteral("hotkeys"), &addKeyboard}, {QStringLiteral("behaviour"), &addSliders},
        {QStringLiteral("updates"), &addDownload}, {QStringLiteral("help"), &addQuestion},
        {QStringLiteral("about"), &addInformation}};
    QPainterPath path;
    drawings.value(page, &addRing)(path);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / side, place.height() / side);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.restore();
}
