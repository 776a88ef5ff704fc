#include "platform/appkit/controls/AssistiveTools.h"

#include "platform/appkit/controls/Mnemonics.h"
#include "platform/appkit/controls/internal/DocumentAccessibility.h"
#include "platform/appkit/controls/internal/GroupAccessibility.h"
#include "platform/appkit/controls/internal/SwitchAccessibility.h"

#include <QAbstractButton>
#include <QRegularExpression>

namespace {

QAccessibleInterface *describe(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    // Once for each object, by its own class.
    if (!widget || className != QLatin1StringView(object->metaObject()->className()))
        return nullptr;
    if (auto *control = qobject_cast<NSSwitch *>(widget))
        return new SwitchAccessibility(control);
    if (auto *document = qobject_cast<QTextBrowser *>(widget))
        return new DocumentAccessibility(document);
    return GroupAccessibility::isFor(widget) ? new GroupAccessibility(widget) : nullptr;
}

} // namespace

void describeControlsToAssistiveTools()
{
    [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(&describe), true);
}

void nameControlsForAssistiveTools(QWidget *view)
{
    static const QRegularExpression signBeforeName(QStringLiteral("^[^\\p{L}\\p{N}\\s]\\s+"));
    for (auto *button : view->findChildren<QAbstractButton *>()) {
        const QString text = withoutMnemonic(button->text());
        if (button->accessibleName().isEmpty() && text.contains(signBeforeName))
            button->setAccessibleName(QString(text).remove(signBeforeName));
    }
}

void alertAssistiveTools(QWidget *widget)
{
    if (!widget->isVisible())
        return;
    QAccessibleEvent alert(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
