#include "host/PageMemory.h"

#include "platform/appkit/controls/Controls.h"

#include <QSignalBlocker>
#include <QTabWidget>
#include <utility>

void showFirst(const QWidget *view, const QString &page)
{
    auto *tabs = view->findChild<QTabWidget *>();
    const qint64 index = tabs && !page.isEmpty() ? indexOfTabViewItemWithIdentifier(tabs, page) : NSNotFound;
    if (index == NSNotFound)
        return;
    const QSignalBlocker quiet(tabs);
    tabs->setCurrentIndex(int(index));
}

void followPages(const QWidget *view, std::function<void(const QString &page)> turned)
{
    const auto *tabs = view->findChild<QTabWidget *>();
    if (!tabs)
        return;
    QObject::connect(tabs, &QTabWidget::currentChanged, tabs, [tabs, turned = std::move(turned)](int index) {
        if (const QWidget *page = tabs->widget(index))
            turned(page->property("identifier").toString());
    });
}
