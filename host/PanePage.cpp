#include "host/PanePage.h"

#include <QEvent>
#include <QScrollBar>

namespace {

QSize leastSize(const QWidget *view, int width)
{
    QSize least = view->minimumSizeHint().expandedTo(view->minimumSize());
    if (view->hasHeightForWidth())
        least.setHeight(view->heightForWidth(std::max(width, least.width())));
    return least;
}

} // namespace

PanePage::PanePage(QWidget *parent) : QScrollArea(parent)
{
    setObjectName(QStringLiteral("panePage"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

void PanePage::takeView(QWidget *view)
{
    // Its texts are measured for their final fonts only.
    view->ensurePolished();
    view->resize(maximumViewportSize());
    setWidget(view);
    view->installEventFilter(this);
    connect(view, &QObject::destroyed, this, &QObject::deleteLater);
    fitView();
}

void PanePage::fitView()
{
    if (!widget())
        return;
    const QSize room = maximumViewportSize();
    // With all the room it would like, and no less, there is nothing to measure.
    const QSize wanted = widget()->sizeHint();
    const bool fits = wanted.width() <= room.width() && wanted.height() <= room.height();
    widget()->resize(fits ? room : scrolledSize(room));
}

QSize PanePage::scrolledSize(QSize room) const
{
    const QSize least = leastSize(widget(), room.width());
    if (least.height() <= room.height())
        return room.expandedTo(least);
    // The vertical scroll bar takes its share of the width.
    const int width = room.width() - verticalScrollBar()->sizeHint().width();
    return QSize(width, room.height()).expandedTo(leastSize(widget(), width));
}

void PanePage::resizeEvent(QResizeEvent *event)
{
    fitView();
    QScrollArea::resizeEvent(event);
}

bool PanePage::eventFilter(QObject *object, QEvent *event)
{
    const bool done = QScrollArea::eventFilter(object, event);
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        fitView();
    return done;
}
