#include "platform/appkit/controls/internal/SwitchAccessibility.h"

#include "platform/appkit/controls/Mnemonics.h"

QString SwitchAccessibility::text(QAccessible::Text kind) const
{
    const QString own = QAccessibleWidget::text(kind);
    // One that is a row has its own text beside it.
    return kind == QAccessible::Name && own.isEmpty() ? withoutMnemonic(control()->text()) : own;
}

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
