#include "platform/appkit/controls/internal/ChoiceDrawing.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QPainter>
#include <QPalette>
#include <cmath>

namespace {

constexpr QRectF windowsInARow[] = {{5, 8, 13, 10}, {14, 20, 17, 10}, {27, 32, 14, 10}};

} // namespace

ChoiceDrawing::ChoiceDrawing(QPainter &painter, const QPalette &palette)
    : painter_(painter), screen_(mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.08f)),
      ground_(palette.color(QPalette::Base)),
      line_(mixed(palette.color(QPalette::Base), palette.color(QPalette::WindowText), 0.45f)),
      accent_(palette.color(QPalette::Highlight)), arrow_(palette.color(QPalette::Link))
{
}

void ChoiceDrawing::drawScreen() const
{
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(screen_);
    painter_.drawRoundedRect(QRectF(0, 0, choiceDrawingSide, choiceDrawingSide), 6, 6);
}

void ChoiceDrawing::drawWindow(const QRectF &place, bool isMarked) const
{
    painter_.setPen(isMarked ? QPen(accent_, 2.4) : QPen(line_, 1));
    painter_.setBrush(ground_);
    painter_.drawRoundedRect(place, 2, 2);
}

/// A line across a window and a little beyond it.
void ChoiceDrawing::drawMark(double x, const QRectF &window) const
{
    painter_.setPen(QPen(accent_, 2.6, Qt::SolidLine, Qt::RoundCap));
    painter_.drawLine(QPointF(x, window.top() - 2), QPointF(x, window.bottom() + 2));
}

void ChoiceDrawing::drawArrow(const QPointF &from, const QPointF &to) const
{
    const double angle = std::atan2(to.y() - from.y(), to.x() - from.x());
    const auto barb = [&](double turn) { return to - 4.5 * QPointF(std::cos(angle + turn), std::sin(angle + turn)); };
    painter_.setPen(QPen(arrow_, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawLine(from, to);
    painter_.drawPolyline(QPolygonF{barb(0.6), to, barb(-0.6)});
}

void ChoiceDrawing::drawOrder(const QString &order) const
{
    drawScreen();
    const bool isByFirst = order == QStringLiteral("FirstSelected");
    const bool isByLow = order == QStringLiteral("LeftEdge") || order == QStringLiteral("TopEdge");
    const bool isByHigh = order == QStringLiteral("RightEdge") || order == QStringLiteral("BottomEdge");
    const bool isByLeading = order == QStringLiteral("LeadingEdge");
    for (const QRectF &window : windowsInARow) {
        const bool isMiddle = window == windowsInARow[1];
        drawWindow(window, isByFirst && isMiddle);
        if (isByLow)
            drawMark(window.left(), window);
        else if (isByHigh || isByLeading)
            drawMark(window.right(), window);
        else if (!isByFirst)
            drawMark(window.center().x(), window);
    }
    if (isByLeading)
        drawArrow({26, 12}, {42, 12});
    if (!isByFirst)
        return;
    drawArrow({11, 25}, {4, 25});
    drawArrow({34, 25}, {42, 25});
}

void ChoiceDrawing::drawStack(bool isUpwards) const
{
    drawScreen();
    drawWindow({14, 25, 22, 16});
    drawWindow({10, 16, 22, 16});
    drawWindow({6, 7, 22, 16}, true);
    isUpwards ? drawArrow({41, 40}, {41, 9}) : drawArrow({41, 9}, {41, 40});
}

void ChoiceDrawing::drawWrapping(bool wraps) const
{
    drawScreen();
    drawWindow({6, 17, 13, 14});
    drawWindow({29, 17, 13, 14}, true);
    if (!wraps) {
        painter_.setPen(QPen(arrow_, 2.4, Qt::SolidLine, Qt::RoundCap));
        painter_.drawLine(QPointF(45.5, 14), QPointF(45.5, 34));
        return;
    }
    painter_.setPen(QPen(arrow_, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawPolyline(QPolygonF{QPointF(35, 12), QPointF(35, 8), QPointF(13, 8)});
    drawArrow({13, 8}, {13, 13});
}
