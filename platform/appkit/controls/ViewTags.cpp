#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/NSMatrix.h"

#include <QStackedWidget>
#include <QTabWidget>

namespace {

template <typename Test>
QWidget *firstView(QWidget *view, const Test &test);

template <typename PageView, typename Test>
QWidget *firstOnPages(const PageView *view, const Test &test)
{
    QWidget *found = nullptr;
    for (int index = 0; index < view->count() && !found; ++index)
        found = firstView(view->widget(index), test);
    return found;
}

template <typename Test>
QWidget *firstWithin(const QWidget *view, const Test &test)
{
    if (view->children().isEmpty() || qobject_cast<const NSMatrix *>(view))
        return nullptr;
    // A stack reorders its children as they are shown.
    if (const auto *tabView = qobject_cast<const QTabWidget *>(view))
        return firstOnPages(tabView, test);
    if (const auto *stack = qobject_cast<const QStackedWidget *>(view))
        return firstOnPages(stack, test);
    QWidget *found = nullptr;
    const QObjectList &children = view->children();
    for (auto child = children.begin(); child != children.end() && !found; ++child)
        found = (*child)->isWidgetType() ? firstView(static_cast<QWidget *>(*child), test) : nullptr;
    return found;
}

/// The first view that passes the test, of this one and all within it.
template <typename Test>
QWidget *firstView(QWidget *view, const Test &test)
{
    return test(view) ? view : firstWithin(view, test);
}

} // namespace

QWidget *viewWithTag(QWidget *root, int viewTag)
{
    return root ? firstView(root, [viewTag](const QWidget *view) { return tag(view) == viewTag; }) : nullptr;
}

QWidgetList viewsWithTagsBelow(QWidget *root, int count)
{
    QWidgetList views(count);
    qsizetype missing = count;
    const auto take = [&](QWidget *view) {
        const int viewTag = tag(view);
        if (viewTag >= 0 && viewTag < count && !views.at(viewTag)) {
            views[viewTag] = view;
            --missing;
        }
        return missing == 0;
    };
    if (root && count > 0)
        firstView(root, take);
    return views;
}
