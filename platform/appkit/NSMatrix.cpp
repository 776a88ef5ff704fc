#include "platform/appkit/NSMatrix.h"

#include "platform/appkit/Controls.h"

#include <QAbstractButton>
#include <QChildEvent>
#include <QRadioButton>

NSMatrix::NSMatrix(QWidget *parent) :
    QWidget(parent)
{
}

QList<QAbstractButton *> NSMatrix::cells() const
{
    return findChildren<QAbstractButton *>();
}

QAbstractButton *NSMatrix::cellWithTag(int cellTag) const
{
    for (QAbstractButton *cell : cells()) {
        if (tag(cell) == cellTag)
            return cell;
    }
    return nullptr;
}

QAbstractButton *NSMatrix::selectedCell() const
{
    if (selectedCell_)
        return selectedCell_;
    for (QAbstractButton *cell : cells()) {
        if (qobject_cast<QRadioButton *>(cell) && cell->isChecked())
            return cell;
    }
    return nullptr;
}

void NSMatrix::childEvent(QChildEvent *event)
{
    QWidget::childEvent(event);
    if (event->type() != QEvent::ChildPolished)
        return;
    if (auto *cell = qobject_cast<QAbstractButton *>(event->child()))
        connect(cell, &QAbstractButton::clicked, this, [this, cell] { cellWasClicked(cell); });
}

void NSMatrix::cellWasClicked(QAbstractButton *cell)
{
    selectedCell_ = cell;
    Q_EMIT cellClicked();
}
