#pragma once

#include "platform/appkit/controls/NSSwitch.h"

#include <QAccessibleWidget>

/// What assistive tools are told of a switch: a check box as large as it is drawn.
class SwitchAccessibility : public QAccessibleWidget
{
public:
    explicit SwitchAccessibility(NSSwitch *control) : QAccessibleWidget(control, QAccessible::CheckBox) { }

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

private:
    NSSwitch *control() const { return static_cast<NSSwitch *>(widget()); }
};
