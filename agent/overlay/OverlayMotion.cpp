#include "agent/overlay/OverlayMotion.h"

#include <algorithm>
#include <cmath>

namespace {

int between(int from, int to, double progress)
{
    return from + qRound((to - from) * progress);
}

} // namespace

QRect OverlayMotion::rectAt(qint64 elapsed) const
{
    if (elapsed >= duration)
        return to;
    const double rest = 1 - double(std::max<qint64>(elapsed, 0)) / duration;
    const double progress = 1 - rest * rest * rest;
    const QPoint corner(between(from.x(), to.x(), progress), between(from.y(), to.y(), progress));
    return {corner, QSize(between(from.width(), to.width(), progress), between(from.height(), to.height(), progress))};
}

int OverlayMotion::stepInterval(double refreshRate)
{
    constexpr int least = duration / mostSteps;
    // A rate that no monitor has would stop the motion.
    return refreshRate >= 1 ? std::clamp(int(std::ceil(1000 / refreshRate)), least, duration) : least;
}
