#include "platform/appkit/controls/NSMatrix.h"

#include "platform/appkit/controls/Controls.h"

#include <QButtonGroup>
#include <QChildEvent>
#include <QRadioButton>

NSMatrix::NSMatrix(QWidget *parent) : QWidget(parent), radioCells_(new QButtonGroup(this)) { }

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

void NSMatrix::selectCell(QAbstractButton *cell)
{
    selectedCell_ = cell;
    for (QAbstractButton *other : cells()) {
        if (other != cell)
            setState(other, NSOffState);
    }
    setState(cell, NSOnState);
}

void NSMatrix::adoptCells()
{
    for (QAbstractButton *cell : cells())
        adoptCell(cell);
}

void NSMatrix::adoptCell(QAbstractButton *cell)
{
    connect(cell, &QAbstractButton::clicked, this, &NSMatrix::cellWasClicked, Qt::UniqueConnection);
    // Radio buttons exclude one another by themselves only where they have the same parent.
    if (qobject_cast<QRadioButton *>(cell) && !cell->group())
        radioCells_->addButton(cell);
}

void NSMatrix::childEvent(QChildEvent *event)
{
    QWidget::childEvent(event);
    // What is added is no button yet: its constructor is still running.
    if (event->added() && event->child()->isWidgetType())
        QMetaObject::invokeMethod(this, &NSMatrix::adoptCells, Qt::QueuedConnection);
}

void NSMatrix::showEvent(QShowEvent *event)
{
    adoptCells();
    QWidget::showEvent(event);
}

void NSMatrix::cellWasClicked()
{
    selectedCell_ = qobject_cast<QAbstractButton *>(sender());
    Q_EMIT cellClicked();
}
