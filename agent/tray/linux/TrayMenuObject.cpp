#include "agent/tray/linux/TrayMenuObject.h"

#include "agent/tray/linux/TrayItem.h"

#include <QDBusConnection>
#include <QLocale>
#include <algorithm>
#include <utility>

namespace {

constexpr int root = 0;

QVariantMap allPropertiesOf(const TrayMenuItem &item)
{
    if (item.label.isEmpty())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    // An underscore would mark the letter behind it.
    QVariantMap all{{QStringLiteral("label"), QString(item.label).replace(u'_', QStringLiteral("__"))}};
    if (item.isChecked) {
        all.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        all.insert(QStringLiteral("toggle-state"), *item.isChecked ? 1 : 0);
    }
    return all;
}

/// No value for an id that is none.
std::optional<QVariantMap> propertiesOf(int id, const TrayView &view)
{
    if (id == root)
        return QVariantMap{{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    const QList<TrayMenuItem> items = trayMenu(view);
    const auto found =
        std::find_if(items.cbegin(), items.cend(), [id](const TrayMenuItem &item) { return item.id == id; });
    return found == items.cend() ? std::nullopt : std::optional(allPropertiesOf(*found));
}

QVariantMap only(const QStringList &names, const QVariantMap &properties)
{
    if (names.isEmpty())
        return properties;
    QVariantMap some;
    for (auto property = properties.cbegin(); property != properties.cend(); ++property) {
        if (names.contains(property.key()))
            some.insert(property.key(), property.value());
    }
    return some;
}

QList<int> allIds(const TrayView &view)
{
    QList<int> ids{root};
    const QList<TrayMenuItem> items = trayMenu(view);
    for (const TrayMenuItem &item : items)
        ids.append(item.id);
    return ids;
}

} // namespace

TrayMenuObject::TrayMenuObject(const TrayView &view) : view_(view)
{
    registerTrayTypes();
    QDBusConnection::sessionBus().registerObject(trayMenuPath, this,
        QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals
            | QDBusConnection::ExportScriptableProperties);
}

TrayMenuObject::~TrayMenuObject()
{
    QDBusConnection::sessionBus().unregisterObject(trayMenuPath);
}

void TrayMenuObject::show(const TrayView &view)
{
    const TrayView before = std::exchange(view_, view);
    QList<TrayMenuProperties> updated;
    const QList<int> ids = allIds(view);
    for (const int id : ids) {
        if (const auto properties = propertiesOf(id, view); properties != propertiesOf(id, before))
            updated.append({id, *properties});
    }
    if (updated.isEmpty())
        return;
    Q_EMIT ItemsPropertiesUpdated(updated, {});
    // Some desktops listen to this alone.
    Q_EMIT LayoutUpdated(++revision_, root);
}

QString TrayMenuObject::textDirection() const
{
    return QLocale().textDirection() == Qt::RightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

uint TrayMenuObject::GetLayout(int parent, int depth, const QStringList &names, TrayMenuNode &layout) const
{
    const auto properties = propertiesOf(parent, view_);
    if (!properties) {
        refuse(parent);
        return 0;
    }
    layout = {parent, only(names, *properties), {}};
    if (parent != root || depth == 0)
        return revision_;
    const QList<TrayMenuItem> items = trayMenu(view_);
    for (const TrayMenuItem &item : items)
        layout.children.append(QVariant::fromValue(TrayMenuNode{item.id, only(names, allPropertiesOf(item)), {}}));
    return revision_;
}

/// No list of ids means all of them.
QList<TrayMenuProperties> TrayMenuObject::GetGroupProperties(const QList<int> &ids, const QStringList &names) const
{
    QList<TrayMenuProperties> all;
    const QList<int> wanted = ids.isEmpty() ? allIds(view_) : ids;
    for (const int id : wanted) {
        if (const auto properties = propertiesOf(id, view_))
            all.append({id, only(names, *properties)});
    }
    return all;
}

QDBusVariant TrayMenuObject::GetProperty(int id, const QString &name) const
{
    const QVariant value = propertiesOf(id, view_).value_or(QVariantMap()).value(name);
    if (!value.isValid())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("line %1 has no property %2").arg(id).arg(name));
    return QDBusVariant(value);
}

void TrayMenuObject::Event(int id, const QString &event, const QDBusVariant &, uint)
{
    if (!take(id, event))
        refuse(id);
}

QList<int> TrayMenuObject::EventGroup(const QList<TrayMenuEvent> &events)
{
    QList<int> unknown;
    for (const TrayMenuEvent &event : events) {
        if (!take(event.id, event.event))
            unknown.append(event.id);
    }
    if (!events.isEmpty() && unknown.size() == events.size())
        refuse(unknown.first());
    return unknown;
}

/// False where there is no such line.
bool TrayMenuObject::take(int id, const QString &event)
{
    if (!propertiesOf(id, view_))
        return false;
    if (event == QStringLiteral("clicked"))
        Q_EMIT clicked(id);
    return true;
}

/// What there is to show has been told already.
bool TrayMenuObject::AboutToShow(int id) const
{
    if (!propertiesOf(id, view_))
        refuse(id);
    return false;
}

QList<int> TrayMenuObject::AboutToShowGroup(const QList<int> &ids, QList<int> &unknown) const
{
    std::copy_if(
        ids.cbegin(), ids.cend(), std::back_inserter(unknown), [this](int id) { return !propertiesOf(id, view_); });
    return {};
}

void TrayMenuObject::refuse(int id) const
{
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no line %1").arg(id));
}
