#pragma once

#include "host/ControlSearch.h"

#include <QLineEdit>

class QCompleter;
class QStandardItemModel;

/// Searches the controls of the shown pane by their words. What matches drops down from it; Return takes the first, a
/// click or the arrows any. Escape closes it: what was typed goes, and the focus returns to the pane.
class SearchField : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchField(QWidget *parent);

    /// The view to search in; null for none. It is looked through when a search begins.
    void setView(QWidget *view) { view_ = view; }
    /// Shows the first control that matches, if any does.
    void showFirstMatch(const QString &search);

protected:
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void leaveRoomForLens();
    void fill(const QString &search);
    QRect placeOfList() const;
    void pick(int place);
    void close();

    QPointer<QWidget> view_;
    QPointer<QWidget> focusBefore_;
    QList<SearchedControl> controls_;
    QList<SearchedControl> matches_;
    QStandardItemModel *model_;
    QCompleter *completer_;
};
