#pragma once

#include <QAccessibleWidget>

/// What assistive tools are told of a card or another view that holds controls which belong together: a group with the
/// view's name, else its heading's. Without either it is nothing by itself. A window is one.
class GroupAccessibility : public QAccessibleWidget
{
public:
    explicit GroupAccessibility(QWidget *view) : QAccessibleWidget(view) { }

    static bool isFor(const QWidget *view);
    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
};
