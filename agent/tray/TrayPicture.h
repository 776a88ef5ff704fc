#pragma once

#include <QByteArray>

/// The icon as pixels, for desktops that do not find it by its name: rows of 32 bits, alpha first, then red, green and
/// blue. Without its colours while Lumaroo is off.
QByteArray trayPicture(int size, bool isOn);
