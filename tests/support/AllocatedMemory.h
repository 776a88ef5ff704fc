#pragma once

#include <cstddef>

/// The bytes that this process has allocated and not freed, also under a sanitizer.
size_t allocatedMemory();
