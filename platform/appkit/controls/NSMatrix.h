#pragma once

#include "platform/appkit/Export.h"

#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;

/// A group of buttons that act as one control: its child buttons are its cells, each with a `tag`. Radio buttons
/// exclude one another.
///
/// The matrix's `action` is performed, with the matrix as sender, after a click has selected a cell. It works the same
/// when it is not shown.
class LM_APPKIT NSMatrix : public QWidget
{
    Q_OBJECT

public:
    explicit NSMatrix(QWidget *parent = nullptr);

    /// The cell that was clicked, or selected by code, last; before that, for radio buttons the checked one, else null.
    QAbstractButton *selectedCell() const;
    /// Selects a cell: it alone is on. Null selects none. Performs no action.
    void selectCell(QAbstractButton *cell);
    /// The cell with a tag, or null.
    QAbstractButton *cellWithTag(int cellTag) const;
    QList<QAbstractButton *> cells() const;

    /// Makes cells of the buttons that were added since. Called by itself when the event loop runs and when the matrix
    /// is shown; by the loader and by performClick, which need the cells before that.
    void adoptCells();

Q_SIGNALS:
    /// The user, or performClick, has clicked a cell; selectedCell() is it.
    void cellClicked();

protected:
    void childEvent(QChildEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void adoptCell(QAbstractButton *cell);
    void cellWasClicked();
    QPointer<QAbstractButton> selectedCell_;
    QButtonGroup *radioCells_;
};
