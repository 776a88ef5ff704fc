#pragma once

#include <QScrollArea>

/// Shows a pane's view as large as the room is; where it needs more, it scrolls.
///
/// A resizable scroll area does the same, but measures every wrapped text of all the view's pages again at each step of
/// its own layout.
class PanePage : public QScrollArea
{
    Q_OBJECT

public:
    explicit PanePage(QWidget *parent = nullptr);

    /// Takes the view in; it goes with the page unless its owner destroys it before, which ends the page too.
    void takeView(QWidget *view);

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void fitView();
    QSize scrolledSize(QSize room) const;
};
