#pragma once

#include <QVariantMap>
#include <chrono>

/// How a movement key that is held repeats.
struct RepeatTiming
{
    bool repeats = true;
    std::chrono::milliseconds delay{250}; ///< from the press to the first repeat
    std::chrono::milliseconds interval{120}; ///< from each to the next

    bool operator==(const RepeatTiming &) const = default;
};

/// What the settings' switch and sliders mean, in which there is nothing that is no number: the delay is "initialDelay"
/// in seconds, but a quarter of a second at least; the interval falls from 1 s to 0.12 s, by the same factor for each
/// step of "repeatRate" from 0 to 1.
RepeatTiming repeatTiming(const QVariantMap &settings);
