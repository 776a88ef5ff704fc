#include "RandomWindows.h"

#include <array>

namespace {

using Rects = QList<QRect>;

QList<Monitor> randomMonitors(quint32 arrangement, RandomNumbers &random)
{
    const std::array sizes{QSize(1920, 1080), QSize(1366, 768), QSize(2560, 1440), QSize(1080, 1920)};
    const QRect first(QPoint(), sizes.at(std::size_t(random.below(4))));
    const QSize second = sizes.at(std::size_t(random.below(4)));
    switch (arrangement % 3) {
    case 1:
        return {{first}, {QRect(QPoint(first.width(), random.below(300)), second)}};
    case 2:
        return {{first}, {QRect(QPoint(random.below(300), first.height()), second)}};
    default:
        return {{first}};
    }
}

/// Splits the largest tile again and again.
Rects tiles(const QRect &screen, int count, RandomNumbers &random)
{
    Rects found{screen};
    while (found.size() < count) {
        const auto largest = std::max_element(found.begin(), found.end(), [](const QRect &one, const QRect &other) {
            return one.width() * one.height() < other.width() * other.height();
        });
        const QRect tile = found.takeAt(largest - found.begin());
        const bool isWide = tile.width() > tile.height();
        const int part = (isWide ? tile.width() : tile.height()) * random.between(3, 7) / 10;
        const QPoint corner = isWide ? QPoint(tile.left() + part, tile.top()) : QPoint(tile.left(), tile.top() + part);
        found += QRect(
            tile.topLeft(), isWide ? QPoint(corner.x() - 1, tile.bottom()) : QPoint(tile.right(), corner.y() - 1));
        found += QRect(corner, tile.bottomRight());
    }
    return found;
}

QRect anywhere(const QRect &screen, RandomNumbers &random)
{
    if (random.oneIn(10))
        return screen;
    const QSize size(random.between(120, screen.width()), random.between(80, screen.height()));
    const QPoint place(random.between(-60, screen.width() - 60), random.between(0, screen.height() - 60));
    return QRect(screen.topLeft() + place, size) & screen;
}

Rects freeOnes(const QRect &screen, int count, RandomNumbers &random)
{
    Rects found;
    while (found.size() < count)
        found += anywhere(screen, random);
    return found;
}

/// Each window with a dialog or two, which are above it.
Rects dialogsOnParents(const QRect &screen, int count, RandomNumbers &random)
{
    Rects found;
    while (found.size() < count) {
        const QRect parent = anywhere(screen, random);
        found.prepend(parent);
        QSize size = parent.size();
        for (int dialogs = random.below(3); dialogs > 0 && found.size() < count; --dialogs) {
            size = QSize(size.width() * random.between(3, 9) / 10, size.height() * random.between(3, 9) / 10);
            QRect dialog(QPoint(), size);
            dialog.moveCenter(parent.center());
            found.prepend(dialog);
        }
    }
    return found;
}

Rects cascade(const QRect &screen, int count, RandomNumbers &random)
{
    const QSize size(screen.width() * random.between(3, 6) / 10, screen.height() * random.between(3, 6) / 10);
    const int offset = random.between(20, 60);
    Rects found;
    for (int i = 0; i < count; ++i)
        found.prepend(QRect(screen.topLeft() + QPoint(offset, offset) * (i + 1), size) & screen);
    return found;
}

constexpr std::array layouts{tiles, freeOnes, dialogsOnParents, cascade};

WindowDescription described(quint32 windowID, const QRect &rect)
{
    WindowDescription window;
    window.windowID = windowID;
    window.windowRect = rect;
    return window;
}

WindowDescription panel(const QRect &screen)
{
    WindowDescription window = described(1, QRect(screen.topLeft(), QSize(screen.width(), 30)));
    window.windowIsIgnored = WindowIgnored::Type;
    return window;
}

} // namespace

WindowWorld randomWorld(quint32 seed)
{
    RandomNumbers random(seed);
    WindowWorld world;
    world.monitors = randomMonitors(seed / 4, random);
    int left = random.between(1, 14);
    for (qsizetype i = 0; i < world.monitors.size(); ++i) {
        const bool isLast = i == world.monitors.size() - 1;
        const int here = isLast ? left : random.below(left + 1);
        left -= here;
        const Rects rects = here > 0 ? layouts.at(seed % 4)(world.monitors.at(i).rect, here, random) : Rects();
        for (const QRect &rect : rects)
            world.windows += described(100 - quint32(world.windows.size()), rect);
    }
    const bool hasMore = random.oneIn(3);
    if (hasMore && world.windows.size() > 1)
        world.windows[random.below(int(world.windows.size()))].isMinimised = true;
    if (hasMore)
        world.windows.prepend(panel(world.monitors.first().rect));
    for (qsizetype i = 0; i < world.windows.size(); ++i)
        world.windows[i].windowOrder = int(i);
    world.activeWindow = world.windows.at(random.below(int(world.windows.size()))).windowID;
    return world;
}
