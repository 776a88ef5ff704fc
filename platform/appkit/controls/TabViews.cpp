#include "platform/appkit/controls/Controls.h"

#include <QTabWidget>

int selectedTabIndex(const QObject *tabView)
{
    const auto *tabs = qobject_cast<const QTabWidget *>(tabView);
    return tabs ? tabs->currentIndex() : 0;
}

void selectTabViewItemAtIndex(QObject *tabView, int index)
{
    if (auto *tabs = qobject_cast<QTabWidget *>(tabView))
        tabs->setCurrentIndex(index);
}

void setLabelOfTabViewItemAtIndex(QObject *tabView, qint64 index, const QString &label)
{
    if (auto *tabs = qobject_cast<QTabWidget *>(tabView); tabs && index < tabs->count())
        tabs->setTabText(int(index), label);
}

qint64 indexOfTabViewItemWithIdentifier(const QObject *tabView, const QString &identifier)
{
    const auto *tabs = qobject_cast<const QTabWidget *>(tabView);
    if (!tabs)
        return 0;
    for (int index = 0; index < tabs->count(); ++index) {
        const QVariant own = tabs->widget(index)->property("identifier");
        if (own.isValid() && own.toString() == identifier)
            return index;
    }
    return NSNotFound;
}
