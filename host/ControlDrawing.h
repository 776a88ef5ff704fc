#pragma once

#include <QColor>

class QPainter;
class QPalette;
class QRect;
class QRectF;
class QStyleOption;
class QStyleOptionSlider;

// The controls as OutlineStyle draws them: flat, with round corners and a quiet outline, in the palette's colours.

inline constexpr double cornerRadius = 6;

/// The palest shade of a palette's text that still stands out by 3:1 from the ground and from what is filled.
QColor outlineColor(const QPalette &palette);

/// A prominent button is filled with the accent colour.
void drawButton(QPainter &painter, const QStyleOption &option, double radius, bool isProminent);
void drawField(QPainter &painter, const QStyleOption &option);
void drawCheckBox(QPainter &painter, const QStyleOption &option);
void drawRadioButton(QPainter &painter, const QStyleOption &option);
void drawFocusRing(QPainter &painter, const QPalette &palette, const QRectF &around);
/// The arrow of what opens a list.
void drawChevron(QPainter &painter, const QStyleOption &option, const QRect &place);
void drawSlider(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle);
void drawScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &thumb);
/// A frame around what fills itself to its corners.
void drawSquareFrame(QPainter &painter, const QStyleOption &option);
