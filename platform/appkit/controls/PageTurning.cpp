#include "platform/appkit/controls/PageTurning.h"

#include <QShortcut>
#include <QTabWidget>

namespace {

enum Direction { Backward = -1, Forward = 1 };

void turnPage(QTabWidget *tabView, Direction direction)
{
    const int count = tabView->count();
    for (int step = 1; step < count; ++step) {
        const int page = (tabView->currentIndex() + direction * step + count) % count;
        if (tabView->isTabEnabled(page) && tabView->isTabVisible(page)) {
            tabView->setCurrentIndex(page);
            return;
        }
    }
}

void addKeys(QTabWidget *tabView, Direction direction, const QList<QKeySequence> &keys)
{
    // The tab view's own keys reach it only from controls that let them pass, and a pop-up does not.
    auto *shortcut = new QShortcut(tabView);
    shortcut->setKeys(keys);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, tabView, [tabView, direction] { turnPage(tabView, direction); });
}

} // namespace

void addPageTurningKeys(QTabWidget *tabView)
{
    addKeys(tabView, Forward, {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown});
    addKeys(tabView, Backward,
        {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Qt::CTRL | Qt::Key_PageUp});
}
