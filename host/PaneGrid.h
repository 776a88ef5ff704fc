#pragma once

#include <QListView>

/// The overview's icons. A click or Enter opens the pane, the arrow keys move among them.
class PaneGrid : public QListView
{
    Q_OBJECT

public:
    explicit PaneGrid(QWidget *parent);

Q_SIGNALS:
    void opened(const QModelIndex &index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
