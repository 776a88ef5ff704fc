#pragma once

#include "agent/windows/WindowWorld.h"

#include <random>

/// The same on every machine, unlike the library's distributions.
class RandomNumbers
{
public:
    explicit RandomNumbers(quint32 seed) : engine_(seed) { }

    /// 0 up to, and without, the limit.
    int below(int limit) { return int(engine_() % quint32(limit)); }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool oneIn(int number) { return below(number) == 0; }

private:
    std::mt19937 engine_;
};

/// 1 to 14 windows as people have them: tiled, free, with dialogs in the middle of their parents, or cascading; on one
/// monitor, or on two that stand side by side or one above the other. Twelve seeds in a row are one of each kind. Now
/// and then there are minimised windows and a panel besides.
WindowWorld randomWorld(quint32 seed);
