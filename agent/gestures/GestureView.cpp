#include "agent/gestures/GestureView.h"

#include <algorithm>

namespace {

int area(const QRect &rect)
{
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

QList<OverlayLabel> shownLabels(const WindowWorld &world, const QHash<int, quint32> &labels)
{
    QList<OverlayLabel> shown;
    for (int digit = 1; digit <= 9; ++digit) {
        const WindowDescription *window = world.window(labels.value(digit));
        if (window && !window->windowRect.isEmpty())
            shown.append({digit, window->windowRect});
    }
    return shown;
}

} // namespace

Monitor monitorOf(const WindowDescription &window, const QList<Monitor> &monitors)
{
    const auto shown = [&window](const Monitor &monitor) { return area(monitor.rect & window.windowRect); };
    const auto most = std::max_element(monitors.cbegin(), monitors.cend(),
        [&shown](const Monitor &one, const Monitor &other) { return shown(one) < shown(other); });
    return most == monitors.cend() ? Monitor{window.windowRect} : *most;
}

OverlayView gestureView(const WindowWorld &world, quint32 selected, const QHash<int, quint32> &labels)
{
    const WindowDescription *window = world.window(selected);
    OverlayView view;
    view.monitor = world.monitors.value(0);
    view.labels = shownLabels(world, labels);
    if (!window)
        return view;
    view.windowID = selected;
    view.windowRect = window->isMinimised ? QRect() : window->windowRect;
    view.frameRect = window->frameRect;
    view.monitor = monitorOf(*window, world.monitors);
    view.title = titleOf(*window);
    view.isCovered = isCoveredInTheMiddle(world, selected);
    view.isOverlapped = isOverlapped(world, selected);
    return view;
}

QString titleOf(const WindowDescription &window)
{
    const QString title = window.windowName.simplified();
    return title.isEmpty() ? window.appName.simplified() : title;
}

QString quoted(const QString &title)
{
    return title.isEmpty() ? QStringLiteral("a window") : u'“' + title + u'”';
}
