#include "platform/appkit/controls/internal/SwitchAccessibility.h"

QAccessible::State SwitchAccessibility::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = control()->isChecked();
    return state;
}

QStringList SwitchAccessibility::actionNames() const
{
    return control()->isEnabled() ? QStringList{toggleAction(), setFocusAction()} : QStringList();
}

void SwitchAccessibility::doAction(const QString &action)
{
    if (action == toggleAction() && control()->isEnabled())
        control()->click();
    else
        QAccessibleWidget::doAction(action);
}
