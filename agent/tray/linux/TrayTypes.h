#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QVariantMap>

// What goes over the bus of an icon and its menu; each is a structure of its members in this order.

/// Rows of 32 bits, alpha, red, green, blue.
struct TrayPixels
{
    int width = 0;
    int height = 0;
    QByteArray pixels;
};

struct TrayToolTip
{
    QString iconName;
    QList<TrayPixels> icon;
    QString title;
    QString text;
};

/// The properties of one line.
struct TrayMenuProperties
{
    int id = 0;
    QVariantMap properties;
};

/// Which of them are as they are by default now.
struct TrayMenuDefaults
{
    int id = 0;
    QStringList names;
};

/// A line with those below it, each of which is such a structure in a variant.
struct TrayMenuNode
{
    int id = 0;
    QVariantMap properties;
    QVariantList children;
};

/// What has been done with a line.
struct TrayMenuEvent
{
    int id = 0;
    QString event;
    QDBusVariant data;
    quint32 time = 0;
};

QDBusArgument &operator<<(QDBusArgument &argument, const TrayPixels &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayPixels &value);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayToolTip &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayToolTip &value);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuProperties &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuProperties &value);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuDefaults &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuDefaults &value);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuNode &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuNode &value);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuEvent &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuEvent &value);

Q_DECLARE_METATYPE(TrayPixels)
Q_DECLARE_METATYPE(TrayToolTip)
Q_DECLARE_METATYPE(TrayMenuProperties)
Q_DECLARE_METATYPE(TrayMenuDefaults)
Q_DECLARE_METATYPE(TrayMenuNode)
Q_DECLARE_METATYPE(TrayMenuEvent)

/// Makes them known to the bus library. Call it before anything of them is sent or exported.
void registerTrayTypes();
