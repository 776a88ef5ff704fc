#pragma once

#include <QString>
#include <QStringList>

/// The titles of the windows that the window manager shows, and that of the active one; empty without any.
QStringList openWindowTitles();
QString activeWindowTitle();
