#include "platform/appkit/Controls.h"
#include "platform/appkit/NSMatrix.h"

#include <QStackedWidget>
#include <QTabWidget>

namespace {

template <typename PageView>
QWidgetList pages(const PageView *view)
{
    QWidgetList pages;
    for (int index = 0; index < view->count(); ++index)
        pages += view->widget(index);
    return pages;
}

QWidgetList subviews(const QWidget *view)
{
    if (qobject_cast<const NSMatrix *>(view))
        return {};
    // A stack reorders its children as they are shown.
    if (const auto *tabView = qobject_cast<const QTabWidget *>(view))
        return pages(tabView);
    if (const auto *stack = qobject_cast<const QStackedWidget *>(view))
        return pages(stack);
    QWidgetList children;
    for (QObject *child : view->children()) {
        if (child->isWidgetType())
            children += static_cast<QWidget *>(child);
    }
    return children;
}

} // namespace

QWidget *viewWithTag(QWidget *root, int viewTag)
{
    if (!root || tag(root) == viewTag)
        return root;
    for (QWidget *subview : subviews(root)) {
        if (QWidget *found = viewWithTag(subview, viewTag))
            return found;
    }
    return nullptr;
}
