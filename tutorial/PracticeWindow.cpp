#include "tutorial/PracticeWindow.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "tutorial/TutorialText.h"

#include <QCloseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace {

constexpr std::array<const char *, shapeCount> names{"Circle", "Square", "Triangle", "Star"};
constexpr std::array<QRgb, shapeCount> colors{0x3f7fd6, 0x2f9e6e, 0xd9822b, 0x9b59c6};

/// A regular polygon; with `inner` below 1 every second corner lies nearer to the middle.
QPainterPath polygon(int corners, double inner)
{
    QPolygonF points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / corners - std::numbers::pi / 2;
        const double radius = i % 2 == 0 ? 1 : inner;
        points += QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    return path;
}

/// Within a circle of radius 1.
QPainterPath outline(Shape shape)
{
    QPainterPath path;
    switch (shape) {
    case Shape::Circle:
        path.addEllipse(QPointF(), 0.95, 0.95);
        break;
    case Shape::Square:
        path.addRoundedRect(QRectF(-0.82, -0.82, 1.64, 1.64), 0.08, 0.08);
        break;
    case Shape::Triangle:
        path = polygon(3, 1).translated(0, 0.18);
        break;
    case Shape::Star:
        path = polygon(10, 0.45);
        break;
    case Shape::None:
        break;
    }
    return path;
}

void paint(QPainter &painter, Shape shape, const QRectF &room)
{
    const double radius = std::min(room.width(), room.height()) / 2;
    QTransform place;
    place.translate(room.center().x(), room.center().y());
    place.scale(radius, radius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(place.map(outline(shape)), QColor(colors.at(size_t(shape))));
}

/// A window that is covered is known by its icon.
QIcon iconOf(Shape shape)
{
    QIcon icon;
    for (const int side : {16, 32, 64, 128}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(painter, shape, picture.rect());
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

QString shapeName(Shape shape)
{
    return tutorialText(names.at(size_t(shape)));
}

PracticeWindow::PracticeWindow(Shape shape) : shape_(shape)
{
    setObjectName(QString::fromLatin1(names.at(size_t(shape))));
    setWindowTitle(shapeName(shape));
    setWindowIcon(iconOf(shape));
    setAccessibleName(shapeName(shape));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_QuitOnClose, false);
}

void PracticeWindow::paintEvent(QPaintEvent *)
{
    const QColor color(colors.at(size_t(shape_)));
    QPainter painter(this);
    painter.fillRect(rect(), mixed(palette().color(QPalette::Base), color, 0.14F));
    const int name = fontMetrics().height() + 16;
    paint(painter, shape_, QRectF(rect()).adjusted(0, 12, 0, -name));
    painter.setPen(palette().color(QPalette::Text));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(rect().adjusted(0, height() - name, 0, 0), Qt::AlignCenter, shapeName(shape_));
}

void PracticeWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT askedToClose();
}

bool PracticeWindow::focusNextPrevChild(bool)
{
    Q_EMIT guideWanted();
    return true;
}
