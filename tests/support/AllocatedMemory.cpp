#include "AllocatedMemory.h"

#include <dlfcn.h>
#include <malloc.h>

size_t allocatedMemory()
{
    // A sanitizer brings an allocator of its own, of which the C library knows nothing.
    using Count = size_t (*)();
    static const auto sanitizersCount =
        reinterpret_cast<Count>(dlsym(RTLD_DEFAULT, "__sanitizer_get_current_allocated_bytes"));
    return sanitizersCount ? sanitizersCount() : mallinfo2().uordblks;
}
