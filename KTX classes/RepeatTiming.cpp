#include "RepeatTiming.h"

#include "KTXConstants.h"
#include "KTXSettings.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastDelay = 0.25, mostDelay = 2; // seconds
constexpr double slowestInterval = 1, fastestInterval = 0.12;

double number(const QVariantMap &settings, const QString &key, double most)
{
    return std::clamp(settings.value(key, KTXDefaultValue(key)).toDouble(), 0.0, most);
}

std::chrono::milliseconds asMilliseconds(double seconds)
{
    return std::chrono::milliseconds(std::lround(seconds * std::chrono::milliseconds(std::chrono::seconds(1)).count()));
}

} // namespace

RepeatTiming repeatTiming(const QVariantMap &settings)
{
    const double delay = std::max(leastDelay, number(settings, KTXInitialDelay, mostDelay));
    const double rate = number(settings, KTXRepeatRate, 1);
    return {settings.value(KTXAutoRepeat, KTXDefaultValue(KTXAutoRepeat)).toBool(), asMilliseconds(delay),
        asMilliseconds(slowestInterval * std::pow(fastestInterval / slowestInterval, rate))};
}
