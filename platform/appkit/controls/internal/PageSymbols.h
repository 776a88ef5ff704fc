#pragma once

#include <QString>

class QColor;
class QPainter;
class QRectF;

/// Draws the symbol of a page, by the page's identifier, as lines in one colour; a ring for one that has none of its
/// own.
void paintPageSymbol(QPainter &painter, const QString &page, const QRectF &place, const QColor &color);
