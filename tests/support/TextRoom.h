#pragma once

#include <QStringList>
#include <QWidget>

/// A text as a widget draws it, and the place that its style leaves it for that.
struct TextRoom
{
    QString text;
    QSize needed; ///< as drawn in the place's width
    QSize given;

    bool isEnough() const { return needed.width() <= given.width() && needed.height() <= given.height(); }
};

/// The texts of a label, a button or a pop-up, all that it may show; none for other widgets.
QList<TextRoom> textRoomsOf(const QWidget *widget);
