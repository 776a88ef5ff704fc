#include "agent/tray/linux/TrayTypes.h"

#include <QDBusMetaType>

namespace {

template <typename... Members>
QDBusArgument &writeAll(QDBusArgument &argument, const Members &...members)
{
    argument.beginStructure();
    (argument << ... << members);
    argument.endStructure();
    return argument;
}

template <typename... Members>
const QDBusArgument &readAll(const QDBusArgument &argument, Members &...members)
{
    argument.beginStructure();
    (argument >> ... >> members);
    argument.endStructure();
    return argument;
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const TrayPixels &value)
{
    return writeAll(argument, value.width, value.height, value.pixels);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayPixels &value)
{
    return readAll(argument, value.width, value.height, value.pixels);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayToolTip &value)
{
    return writeAll(argument, value.iconName, value.icon, value.title, value.text);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayToolTip &value)
{
    return readAll(argument, value.iconName, value.icon, value.title, value.text);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuProperties &value)
{
    return writeAll(argument, value.id, value.properties);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuProperties &value)
{
    return readAll(argument, value.id, value.properties);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuDefaults &value)
{
    return writeAll(argument, value.id, value.names);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuDefaults &value)
{
    return readAll(argument, value.id, value.names);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuNode &value)
{
    return writeAll(argument, value.id, value.properties, value.children);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuNode &value)
{
    return readAll(argument, value.id, value.properties, value.children);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuEvent &value)
{
    return writeAll(argument, value.id, value.event, value.data, value.time);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuEvent &value)
{
    return readAll(argument, value.id, value.event, value.data, value.time);
}

void registerTrayTypes()
{
    qDBusRegisterMetaType<TrayPixels>();
    qDBusRegisterMetaType<QList<TrayPixels>>();
    qDBusRegisterMetaType<TrayToolTip>();
    qDBusRegisterMetaType<TrayMenuProperties>();
    qDBusRegisterMetaType<QList<TrayMenuProperties>>();
    qDBusRegisterMetaType<TrayMenuDefaults>();
    qDBusRegisterMetaType<QList<TrayMenuDefaults>>();
    qDBusRegisterMetaType<TrayMenuNode>();
    qDBusRegisterMetaType<TrayMenuEvent>();
    qDBusRegisterMetaType<QList<TrayMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}
