#pragma once

#include <QRect>

/// Where the enlarged picture of a window of this size stands on a monitor: in its middle, in the window's own shape,
/// as large as fits into nine tenths of the monitor, but at most four times the window. Never empty.
QRect previewRect(QSize window, const QRect &monitor);
