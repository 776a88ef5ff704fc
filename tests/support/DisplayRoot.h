#pragma once

#include <QList>
#include <QRect>

/// The X server's clock.
quint32 serverTime();

// What window managers write on the root.
void setOnRoot(const char *property, const char *type, const QList<quint32> &values);
void removeFromRoot(const char *property);
QList<quint32> valuesOnRoot(const char *property);

/// Makes monitors side by side or as told, in place of those that the server has; they say that they are of that size.
void setMonitors(const QList<QRect> &monitors, int dotsPerInch = 96);

/// A colour that no window's frame has.
inline constexpr quint32 groundColor = 0xff00ff;
/// What is seen on a ground of that colour; shadows on it are not.
QRect seenOnGround();
