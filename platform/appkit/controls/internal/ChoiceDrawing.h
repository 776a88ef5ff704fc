#pragma once

#include <QColor>

class QPainter;
class QPalette;
class QPointF;
class QRectF;
class QString;

inline constexpr int choiceDrawingSide = 48;

/// The drawings of ChoicePicture, on a square of 48 by 48, as they are from left to right.
class ChoiceDrawing
{
public:
    ChoiceDrawing(QPainter &painter, const QPalette &palette);

    /// What counts of a window: one of its edges, its middle, or the window that was first.
    void drawOrder(const QString &order) const;
    /// From the window in front to the ones it covers, or back.
    void drawStack(bool isUpwards) const;
    /// Whether what leaves at one edge comes back at the other.
    void drawWrapping(bool wraps) const;

private:
    void drawScreen() const;
    void drawWindow(const QRectF &place, bool isMarked = false) const;
    void drawMark(double x, const QRectF &window) const;
    void drawArrow(const QPointF &from, const QPointF &to) const;

    QPainter &painter_;
    QColor screen_, ground_, line_, accent_, arrow_;
};
