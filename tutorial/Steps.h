#pragma once

#include "tutorial/AgentReport.h"

/// What the tutorial teaches, in this order.
enum class Step : quint8 { Move, Wrap, Under, Cancel, Accept, Close };

/// The windows to practise with: three in a row, and one that lies under the second.
enum class Shape : quint8 { Circle, Square, Triangle, Star, None };
inline constexpr int shapeCount = 4;

/// The steps that can be done with the settings and keys as they are.
QList<Step> possibleSteps(const AgentReport &report);

/// Where a step begins.
Shape startOf(Step step);
