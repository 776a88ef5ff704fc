#include "tutorial/StageLayout.h"

#include <algorithm>

namespace {

constexpr int margin = 24;
constexpr int frame = 36; ///< room for a title bar
constexpr QSize largest(260, 180);
constexpr QSize smallest(110, 70);
constexpr int mostPeep = 5;
/// With what frames add to it less than the 4,096 by which a window counts as seen.
constexpr double mostPixelsSeen = 3000;

/// How far the star peeps out from under the square: enough to be noticed, too little to be walked to.
QPoint peep(QSize window, double scale)
{
    const int most = int(mostPixelsSeen / (scale * scale * (window.width() + window.height())));
    const int distance = std::clamp(most, 0, mostPeep);
    return {distance, distance};
}

} // namespace

StageLayout stageLayout(const QRect &available, QSize guide, double scale)
{
    StageLayout layout;
    const int guideLeft = available.center().x() - guide.width() / 2;
    layout.guide = {std::max(available.left(), guideLeft), available.top() + margin};
    const int top = layout.guide.y() + frame + guide.height() + margin;
    const int room = available.bottom() - top - frame - margin;
    const QSize size = QSize((available.width() - 4 * margin) / 3, room).boundedTo(largest).expandedTo(smallest);
    const int gap = (available.width() - 3 * size.width()) / 4;
    const int distance = std::min(gap, 3 * margin);
    const int rowLeft = available.center().x() - (3 * size.width() + 2 * distance) / 2;
    const int rowTop = top + std::clamp((room - size.height()) / 3, 0, 4 * margin);
    for (int i = 0; i < 3; ++i)
        layout.windows.at(size_t(i)) = QRect({rowLeft + i * (size.width() + distance), rowTop}, size);
    layout.windows.at(size_t(Shape::Star)) = layout.windows.at(size_t(Shape::Square)).translated(peep(size, scale));
    return layout;
}
