// What an interface file says of the stored values that its controls follow.

#include "platform/appkit/controls/NSMatrix.h"
#include "platform/appkit/interface/internal/InterfaceConnections.h"

#include <QComboBox>

namespace {

QVariant bindingValue(const QString &text)
{
    if (text == QLatin1StringView("true"))
        return true;
    return text == QLatin1StringView("false") ? QVariant(false) : QVariant(text);
}

QVariantList bindingValues(const QObject *control)
{
    QVariantList values;
    for (const QString &text : control->property("bindingValues").toStringList())
        values += bindingValue(text);
    return values;
}

/// How many values a control needs: one for each of its items or cells.
qsizetype valuesNeeded(const QObject *control)
{
    if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        return popUp->count();
    const auto *matrix = qobject_cast<const NSMatrix *>(control);
    return matrix ? matrix->cells().size() : 0;
}

} // namespace

std::optional<DefaultsBinding> InterfaceConnections::bindingTo(const QObject *control, const QString &setting) const
{
    const bool isNegated = setting.startsWith(u'!');
    const QString domain = setting.mid(isNegated).section(u'/', 0, 0);
    const QString key = setting.section(u'/', 1);
    if (!domain.isEmpty() && !key.isEmpty())
        return DefaultsBinding{domain, key, {}, isNegated, false};
    log(control, QStringLiteral("%1 names no setting").arg(setting));
    return {};
}

void InterfaceConnections::bindValue(QObject *control, const QString &setting)
{
    std::optional<DefaultsBinding> binding = bindingTo(control, setting);
    if (!binding)
        return;
    binding->values = bindingValues(control);
    binding->isOnceOnly = control->property("bindingOnceOnly").toBool();
    if (binding->values.size() != valuesNeeded(control))
        log(control, QStringLiteral("%1 values for %2 items").arg(binding->values.size()).arg(valuesNeeded(control)));
    else if (!NSUserDefaultsController::sharedUserDefaultsController()->bindValue(control, *binding))
        log(control,
            QStringLiteral("a %1 shows no setting").arg(QLatin1StringView(control->metaObject()->className())));
}

void InterfaceConnections::bindEnabled(QObject *control, const QString &setting)
{
    if (const auto binding = bindingTo(control, setting))
        NSUserDefaultsController::sharedUserDefaultsController()->bindEnabled(control, *binding);
}
