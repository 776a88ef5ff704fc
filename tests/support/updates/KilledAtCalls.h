#pragma once

#include <functional>

/// Runs `work` in a process of its own again and again, and kills it (SIGKILL) one system call that changes files later
/// each time: just before the first such call, before the second, and so on, until it comes to its end. `afterwards`
/// looks at what is left and prepares the next run. The number of times that it was killed.
///
/// `work` runs in a fork of this process: no event loop, no network.
int killAtEachCall(const std::function<void()> &work, const std::function<void()> &afterwards);
