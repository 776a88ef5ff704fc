#pragma once

#include "platform/appkit/Export.h"

#include <QPointer>
#include <QWidget>

class QAbstractButton;

/// A group of buttons that act as one control: its child buttons are its cells, each with a `tag`. Radio buttons exclude one another.
///
/// The matrix's `action` is performed, with the matrix as sender, after a click has selected a cell. It works the same when it is not shown.
class LM_APPKIT NSMatrix : public QWidget
{
    Q_OBJECT

public:
    explicit NSMatrix(QWidget *parent = nullptr);

    /// The cell clicked last; before any click, for radio buttons the checked one, else null.
    QAbstractButton *selectedCell() const;
    /// The cell with a tag, or null.
    QAbstractButton *cellWithTag(int cellTag) const;
    QList<QAbstractButton *> cells() const;

Q_SIGNALS:
    /// The user, or performClick, has clicked a cell; selectedCell() is it.
    void cellClicked();

protected:
    void childEvent(QChildEvent *event) override;

private:
    void cellWasClicked(QAbstractButton *cell);
    QPointer<QAbstractButton> selectedCell_;
};
