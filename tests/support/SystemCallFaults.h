#pragma once

#include "platform/foundation/system/SystemCalls.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>

/// Makes the `occurrence`-th use of a system call, and it alone, fail with `error`.
template <typename Result, typename... Arguments>
void failOnce(std::function<Result(Arguments...)> SystemCalls::*call, int occurrence, int error)
{
    auto remaining = std::make_shared<int>(occurrence);
    systemCalls().*call = [original = systemCalls().*call, remaining, error](Arguments... arguments) -> Result {
        if (--*remaining != 0)
            return original(arguments...);
        errno = error;
        return -1;
    };
}

/// A failing close closes all the same.
inline void failToCloseOnce(int occurrence, int error)
{
    auto remaining = std::make_shared<int>(occurrence);
    systemCalls().close = [original = systemCalls().close, remaining, error](int descriptor) {
        const int result = original(descriptor);
        if (--*remaining != 0)
            return result;
        errno = error;
        return -1;
    };
}

/// Runs `before` at each use of a system call.
template <typename Result, typename... Arguments>
void observe(std::function<Result(Arguments...)> SystemCalls::*call, const std::function<void()> &before)
{
    systemCalls().*call = [original = systemCalls().*call, before](Arguments... arguments) -> Result {
        before();
        return original(arguments...);
    };
}

/// Counts the calls that write, or open for writing, from now on.
inline std::shared_ptr<int> countWritingCalls()
{
    auto count = std::make_shared<int>(0);
    const auto counting = [count] { ++*count; };
    observe(&SystemCalls::write, counting);
    observe(&SystemCalls::fsync, counting);
    observe(&SystemCalls::rename, counting);
    observe(&SystemCalls::renameWithoutReplacing, counting);
    observe(&SystemCalls::unlink, counting);
    observe(&SystemCalls::mkdir, counting);
    observe(&SystemCalls::flock, counting);
    systemCalls().open = [original = systemCalls().open, count](const char *path, int flags, mode_t mode) {
        *count += (flags & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0;
        return original(path, flags, mode);
    };
    return count;
}
