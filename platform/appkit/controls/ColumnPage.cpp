#include "platform/appkit/controls/ColumnPage.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QScrollBar>

namespace {

constexpr int widestColumn = 720 + 2 * 24; // with its margins
constexpr int leastSideBySide = 700;
constexpr QSize comfortableSize(widestColumn, 530);

} // namespace

ColumnPage::ColumnPage(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    viewport()->setAutoFillBackground(false);
    // The toolkit itself follows the Tab key alone.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && widget() && widget()->isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton)
            ensureWidgetVisible(now);
    });
}

QSize ColumnPage::sizeHint() const
{
    return comfortableSize;
}

bool ColumnPage::event(QEvent *event)
{
    if (event->type() == QEvent::Polish)
        fitColumn();
    return QScrollArea::event(event);
}

void ColumnPage::resizeEvent(QResizeEvent *event)
{
    turnSideBySide();
    QScrollArea::resizeEvent(event);
}

void ColumnPage::turnSideBySide()
{
    auto *layout = widget() && !sideBySide_.isEmpty() ? widget()->findChild<QBoxLayout *>(sideBySide_) : nullptr;
    if (!layout)
        return;
    layout->setDirection(QBoxLayout::LeftToRight);
    widget()->layout()->invalidate();
    // What is wide enough in one language is too narrow for the texts of another. A scroll bar may come with either.
    const int room = width() - verticalScrollBar()->sizeHint().width();
    if (width() < leastSideBySide || widget()->minimumSizeHint().width() > room)
        layout->setDirection(QBoxLayout::TopToBottom);
}

void ColumnPage::fitColumn()
{
    if (!widget())
        return;
    widget()->setMaximumWidth(widestColumn);
    widget()->setAutoFillBackground(false);
}
