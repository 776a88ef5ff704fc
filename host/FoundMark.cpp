#include "host/FoundMark.h"

#include <QPainter>
#include <QTimer>
#include <chrono>

namespace {

constexpr int gap = 4;
constexpr qreal lineWidth = 2;
constexpr qreal radius = 6;
constexpr std::chrono::milliseconds shownFor(2000);

} // namespace

FoundMark::FoundMark(QWidget *control) : QWidget(control->parentWidget())
{
    setObjectName(QStringLiteral("foundMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(control->geometry().adjusted(-gap, -gap, gap, gap));
    raise();
    show();
    QTimer::singleShot(shownFor, this, &QObject::deleteLater);
}

void FoundMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), lineWidth));
    const qreal inset = lineWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}
