#include "platform/appkit/controls/internal/GroupAccessibility.h"

#include "platform/appkit/controls/CardView.h"
#include "platform/appkit/controls/NSMatrix.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QLayout>

namespace {

QString headingIn(QLayoutItem *item)
{
    if (const auto *label = qobject_cast<const StyledLabel *>(item->widget()))
        return label->textStyle() == StyledLabel::Heading ? label->text() : QString();
    for (int index = 0; item->layout() && index < item->layout()->count(); ++index) {
        const QString heading = headingIn(item->layout()->itemAt(index));
        if (!heading.isEmpty())
            return heading;
    }
    return {};
}

/// What stands before a view in the layout that holds it, or in one within that.
QString headingBefore(const QWidget *view, QLayout *layout)
{
    for (int index = 0; layout && index < layout->count(); ++index) {
        QLayoutItem *item = layout->itemAt(index);
        if (item->widget() == view)
            return index > 0 ? headingIn(layout->itemAt(index - 1)) : QString();
        const QString within = headingBefore(view, item->layout());
        if (!within.isEmpty())
            return within;
    }
    return {};
}

/// A control that has no parent yet is a window too, but holds nothing.
bool isPlainWindow(const QWidget *view)
{
    return view->isWindow() && view->windowType() == Qt::Window && view->layout();
}

QString headingOf(const QWidget *view)
{
    const QWidget *around = view->parentWidget();
    const QString before = around ? headingBefore(view, around->layout()) : QString();
    return before.isEmpty() && view->layout() ? headingIn(view->layout()) : before;
}

} // namespace

bool GroupAccessibility::isFor(const QWidget *view)
{
    const bool isPlain = view->metaObject() == &QWidget::staticMetaObject && !view->accessibleName().isEmpty();
    return isPlain || isPlainWindow(view) || qobject_cast<const CardView *>(view)
        || qobject_cast<const NSMatrix *>(view);
}

QAccessible::Role GroupAccessibility::role() const
{
    if (isPlainWindow(widget()))
        return QAccessible::Window;
    return text(QAccessible::Name).isEmpty() ? QAccessible::Client : QAccessible::Grouping;
}

QString GroupAccessibility::text(QAccessible::Text kind) const
{
    const QString own = QAccessibleWidget::text(kind);
    const bool needsHeading = kind == QAccessible::Name && own.isEmpty() && qobject_cast<CardView *>(widget());
    return needsHeading ? headingOf(widget()) : own;
}
