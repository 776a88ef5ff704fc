#include "host/PaneGrid.h"

#include <QKeyEvent>

namespace {

constexpr QSize pictureSize(64, 64);
constexpr QSize cellSize(136, 124);

bool opensPane(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

} // namespace

PaneGrid::PaneGrid(QWidget *parent) : QListView(parent)
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setWordWrap(true);
    setIconSize(pictureSize);
    setGridSize(cellSize);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false); // icons stand on the window itself
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(this, &QListView::clicked, this, &PaneGrid::opened);
}

void PaneGrid::keyPressEvent(QKeyEvent *event)
{
    // The view's own "activated" would also come with the clicks of some styles, and open a pane twice.
    if (opensPane(event->key()) && currentIndex().isValid())
        Q_EMIT opened(currentIndex());
    else
        QListView::keyPressEvent(event);
}
