#pragma once

#include "agent/overlay/Overlay.h"
#include "agent/selection/VisibleWindows.h"

#include <QHash>

/// What is marked where a window is selected and others have digits.
OverlayView gestureView(const WindowWorld &world, quint32 selected, const QHash<int, quint32> &labels);

/// The one that shows most of a window; the first one where nothing of it shows.
Monitor monitorOf(const WindowDescription &window, const QList<Monitor> &monitors);

/// What a window is called, on one line: by its title, else its program.
QString titleOf(const WindowDescription &window);
/// For a sentence; a window that is called nothing is "a window".
QString quoted(const QString &title);
