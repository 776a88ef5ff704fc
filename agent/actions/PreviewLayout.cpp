#include "agent/actions/PreviewLayout.h"

#include <algorithm>

namespace {

constexpr double partOfMonitor = 0.9;
constexpr double greatestScale = 4;

} // namespace

QRect previewRect(QSize window, const QRect &monitor)
{
    const QSizeF from = window.expandedTo({1, 1});
    const double scale = std::min({greatestScale, partOfMonitor * monitor.width() / from.width(),
        partOfMonitor * monitor.height() / from.height()});
    QRect rect({}, (from * scale).toSize().expandedTo({1, 1}));
    rect.moveCenter(monitor.center());
    return rect;
}
